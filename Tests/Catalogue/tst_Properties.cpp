#include <Catalogue/EntryWindow.h>
#include <Gallery/Inspector/SignalLog.h>

#include <Support/TestCase.h>

#include <QBitmap>
#include <QRegularExpression>

#include <climits>
#include <limits>

#if defined(Q_OS_UNIX)
#include <sys/resource.h>
#endif

using namespace Zelkor::Catalogue;
using Zelkor::Gallery::FindObject;

namespace {

using Real = std::numeric_limits<double>;
using Long = std::numeric_limits<qint64>;

constexpr int MANY = 100000;
constexpr QRect PLACE(10, 10, 280, 180);

QString NameOf(const QMetaProperty& property)
{
    return QString(property.enclosingMetaObject()->className()).section("::", -1) + "::" + property.name();
}

// Of QWidget's properties only those that change the geometry of parts, and none whose values Qt checks.
bool IsTested(const QMetaProperty& property)
{
    static const QRegularExpression CHECKED_BY_QT(
        "^(QComboBox::max.*|QSpinBox::displayIntegerBase|QAbstractButton::icon|"
        "Q(Date)?TimeEdit::(date|time|minimum|maximum).*)$");
    static const QRegularExpression GEOMETRY("^QWidget::(.*Size.*|layoutDirection)$");
    const QString name = NameOf(property);
    return name.startsWith("QWidget::") ? name.contains(GEOMETRY) : !name.contains(CHECKED_BY_QT);
}

QImage TinyImage(QImage::Format format)
{
    QImage image(1, 1, format);
    image.fill(0);
    return image;
}

QVariantList EnumValues(const QMetaProperty& property)
{
    const QMetaEnum keys = property.enumerator();
    QVariantList values;
    for (int i = 0; i < keys.keyCount(); ++i)
        values.append(keys.value(i));
    // Qt does not validate its enumerators.
    if (IsOurs(property) && qstrcmp(keys.scope(), "Qt") != 0)
        values += QVariantList{keys.keyCount(), -1, INT_MAX, INT_MIN};
    return values;
}

QVariantList TextValues(const QMetaProperty& property)
{
    // Qt warns about style sheets with a syntax error.
    if (QByteArray(property.name()).endsWith("Style"))
        return {QString(), QStringLiteral("border: 1px solid red;").repeated(MANY / 100)};
    // Qt's labels and buttons are slow with long texts.
    const QString longText = QStringLiteral("Wide & ").repeated(IsOurs(property) ? MANY / 7 : MANY / 70);
    return {QString(), QStringLiteral("<b>%1</i>\n\t&&\r%2").arg(QChar(0xd800)).arg(QChar()), longText};
}

// Extreme and invalid values of the property's type.
QVariantList HardValues(const QMetaProperty& property)
{
    if (property.isEnumType())
        return EnumValues(property);
    // Qt's styles divide by zero for a slider with more than INT_MAX steps.
    const int divisor = NameOf(property).startsWith("QAbstractSlider::") ? 2 : 1;
    switch (property.userType()) {
    case QMetaType::Bool:
        return {true, false};
    case QMetaType::Int:
        return {INT_MIN / divisor, -1, 0, 1, MANY, INT_MAX / divisor};
    case QMetaType::LongLong:
        return {Long::min(), qint64(-1), qint64(0), qint64(1), Long::max()};
    case QMetaType::Double:
        return {-1.0, 0.0, Real::infinity(), -Real::infinity(), Real::max(), Real::denorm_min(), Real::quiet_NaN()};
    case QMetaType::QString:
        return TextValues(property);
    case QMetaType::QStringList:
        return {QStringList(), QStringList(QString()), QStringList(QVector<QString>(MANY, "x").toList())};
    case QMetaType::QColor:
        return {QColor(), QColor(Qt::transparent), QColor::fromCmyk(1, 2, 3, 4, 5)};
    case QMetaType::QPointF:
        return {QPointF(Real::quiet_NaN(), Real::infinity()), QPointF(Real::max(), Real::lowest()), QPointF()};
    case QMetaType::QSize:
        // QWidget warns about sizes out of range.
        if (NameOf(property).startsWith("QWidget::"))
            return {QSize(0, 0), QSize(QWIDGETSIZE_MAX, 1), QSize(1, QWIDGETSIZE_MAX)};
        return {QSize(), QSize(0, 0), QSize(INT_MIN, INT_MIN), QSize(INT_MAX, 1), QSize(1, INT_MAX)};
    case QMetaType::QRect:
        return {QRect(), QRect(9, 9, -5, -5), QRect(INT_MIN, INT_MIN, 1, 1), QRect(INT_MAX / 2, INT_MAX / 2, 1, 1),
                QRect(0, 0, INT_MAX, INT_MAX)};
    case QMetaType::QPixmap:
        return {QPixmap(), QBitmap(1, 1), QPixmap::fromImage(TinyImage(QImage::Format_RGB16))};
    case QMetaType::QImage:
        return {QImage(), TinyImage(QImage::Format_Mono), TinyImage(QImage::Format_Indexed8),
                QImage(1, MANY, QImage::Format_Alpha8), QImage(MANY, 1, QImage::Format_RGB16)};
    default:
        return {};
    }
}

QString Text(const QVariant& value)
{
    QString text;
    QDebug(&text) << value;
    return text;
}

// Unlike operator==, this treats NaN as equal to itself, and pictures as equal to their copies.
bool IsSame(const QVariant& a, const QVariant& b)
{
    if (a.userType() == QMetaType::QPixmap)
        return a.value<QPixmap>().toImage() == b.value<QPixmap>().toImage();
    return a == b || Text(a) == Text(b);
}

} // namespace

class tst_Properties : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
#if defined(Q_OS_UNIX) && !defined(__SANITIZE_ADDRESS__)
        // Makes an allocation in proportion to a huge value fail.
        const rlimit limit{rlim_t(4) << 30, rlim_t(4) << 30};
        QCOMPARE(setrlimit(RLIMIT_AS, &limit), 0);
#endif
        ApplySheet("dark");
    }

    void acceptsExtremeValues_data()
    {
        AddRowsOfProperties(IsTested);
    }

    void acceptsExtremeValues()
    {
        QFETCH(QByteArray, property);
        EntryWindow scene(EntryOfRow(), EntryOfRow().states.first());
        // Else a widget without a size would not be painted.
        delete scene.window->layout();
        scene.window->show();
        QObject* subject = FindObject(scene.widget, EntryOfRow().className);
        const QMetaProperty meta = subject->metaObject()->property(subject->metaObject()->indexOfProperty(property));
        const bool isCount = NameOf(meta) == "QLedMatrix::rows" || NameOf(meta) == "QLedMatrix::columns";
        for (const QVariant& value : HardValues(meta)) {
            if (isCount && value == 0)
                ExpectWarning("no rows or columns to display");
            if (isCount && value == INT_MAX)
                ExpectWarning("are too many");

            const QByteArray name = Text(value).left(100).toUtf8();
            const QVariant before = meta.read(subject);
            std::unique_ptr<QSignalSpy> changes;
            if (meta.hasNotifySignal())
                changes = std::make_unique<QSignalSpy>(subject, meta.notifySignal());
            meta.write(subject, value);
            const QVariant after = meta.read(subject);
            meta.write(subject, after);
            QVERIFY2(!IsOurs(meta) || IsSame(meta.read(subject), after), "does not accept what it returned: " + name);
            scene.widget->sizeHint();
            scene.widget->minimumSizeHint();
            scene.widget->setGeometry(PLACE);
            scene.widget->show();
            QCoreApplication::processEvents();
            QImage image(PLACE.size(), QImage::Format_RGB32);
            scene.widget->render(&image);
            const bool isSilent = changes && changes->isEmpty();
            QVERIFY2(!IsOurs(meta) || !isSilent || IsSame(after, before), "changed without a signal: " + name);
            meta.write(subject, before);
            QVERIFY2(!IsOurs(meta) || IsSame(meta.read(subject), before), "does not restore its value after " + name);
        }
    }
};

VX_TEST_MAIN(tst_Properties)
#include "tst_Properties.moc"
