#include <Catalogue/Catalogue.h>
#include <Examples/Support/BuiltInStyleSheets.h>
#include <Gallery/Inspector/SignalLog.h>

#include <Support/TestCase.h>

#include <QBitmap>
#include <QIcon>
#include <QMetaProperty>
#include <QRegularExpression>

#include <algorithm>
#include <climits>
#include <limits>
#include <memory>

#if defined(Q_OS_UNIX)
#include <sys/resource.h>
#endif

using namespace Zelkor::Catalogue;
using namespace Zelkor::Gallery;
using Zelkor::Examples::LoadStyleSheet;

namespace {

constexpr int MANY = 100000;
constexpr QRect PLACE(10, 10, 280, 180);
constexpr QSize WINDOW_SIZE(300, 200);

QString NameOf(const QMetaObject* meta)
{
    return QString::fromLatin1(meta->className()).section("::", -1);
}

QString NameOf(const QMetaProperty& property)
{
    return NameOf(property.enclosingMetaObject()) + "::" + property.name();
}

bool IsOurs(const QMetaProperty& property)
{
    const QString name = NameOf(property.enclosingMetaObject());
    return !name.startsWith('Q') || FindEntry(name);
}

/// A widget of an entry in a small window, and the object whose properties are set.
struct Stage
{
    explicit Stage(const Entry& entry)
        : widget(CreateInState(entry, entry.states.first(), &window)), subject(FindObject(widget, entry.className))
    {
        window.resize(WINDOW_SIZE);
        window.show();
        Perform();
    }

    // Whatever it was told to be, it must be able to lay out and to paint.
    void Perform()
    {
        widget->sizeHint();
        widget->minimumSizeHint();
        widget->setGeometry(PLACE);
        widget->show();
        QCoreApplication::processEvents();
        QImage image(WINDOW_SIZE, QImage::Format_RGB32);
        widget->render(&image);
    }

    QWidget window;
    QWidget* widget;
    QObject* subject;
};

QImage TinyImage(QImage::Format format)
{
    QImage image(1, 1, format);
    image.fill(0);
    return image;
}

QVariantList EnumValues(const QMetaProperty& property)
{
    const QMetaEnum type = property.enumerator();
    QVariantList values;
    for (int i = 0; i < type.keyCount(); ++i)
        values.append(type.value(i));
    // What Qt does with values that its enumerations do not have is its own affair.
    if (IsOurs(property) && qstrcmp(type.scope(), "Qt") != 0)
        values += QVariantList{type.keyCount(), -1, INT_MAX, INT_MIN};
    return values;
}

QVariantList IntValues(const QMetaProperty& property)
{
    // A slider that has more than INT_MAX steps makes Qt's styles divide by zero.
    const bool isOfRange = NameOf(property.enclosingMetaObject()) == "QAbstractSlider";
    const int divisor = isOfRange ? 2 : 1;
    return {INT_MIN / divisor, -1, 0, 1, 100000, INT_MAX / divisor};
}

QVariantList TextValues(const QMetaProperty& property)
{
    const QByteArray name = property.name();
    // Qt warns of a sheet or a part of one that it cannot read, whenever it comes to it.
    if (name.endsWith("Style"))
        return {QString(), QStringLiteral("border: 1px solid red;").repeated(MANY / 100)};
    if (name == "styleSheet")
        return {QString(), QStringLiteral("* { color: red }").repeated(MANY / 100)};
    // The labels and buttons of Qt take long for texts, and there are many of them.
    const QString longText = QStringLiteral("Wide & ").repeated(IsOurs(property) ? MANY / 7 : MANY / 70);
    const QString oddText = QStringLiteral("<b>%1</i>\n\t&&\r%2").arg(QChar(0xd800)).arg(QChar());
    return {QString(), QStringLiteral(""), oddText, longText};
}

QVariantList RealValues()
{
    using Real = std::numeric_limits<double>;
    QVariantList values = {-1.0, 0.0};
    for (const double largest : {Real::infinity(), Real::max(), Real::denorm_min()})
        values += QVariantList{largest, -largest};
    return values + QVariantList{Real::quiet_NaN()};
}

// Values at the ends of the property's type and beyond all sense.
QVariantList HardValues(const QMetaProperty& property)
{
    using Real = std::numeric_limits<double>;
    using Long = std::numeric_limits<qint64>;
    if (property.isEnumType())
        return EnumValues(property);
    switch (property.userType()) {
    case QMetaType::Bool:
        return {true, false};
    case QMetaType::Int:
        return IntValues(property);
    case QMetaType::LongLong:
        return {Long::min(), qint64(-1), qint64(0), qint64(1), Long::max()};
    case QMetaType::Double:
        return RealValues();
    case QMetaType::QString:
        return TextValues(property);
    case QMetaType::QStringList:
        return {QStringList(), QStringList(QString()), QStringList(QVector<QString>(MANY, "x").toList())};
    case QMetaType::QColor:
        return {QColor(), QColor(Qt::transparent), QColor::fromCmyk(1, 2, 3, 4, 5)};
    case QMetaType::QPoint:
        return {QPoint(INT_MIN, INT_MIN), QPoint(INT_MAX / 2, INT_MAX / 2)};
    case QMetaType::QPointF:
        return {QPointF(Real::quiet_NaN(), Real::infinity()), QPointF(Real::max(), Real::lowest()), QPointF()};
    case QMetaType::QSize:
        return {QSize(), QSize(0, 0), QSize(INT_MIN, INT_MIN), QSize(INT_MAX, 1), QSize(1, INT_MAX)};
    case QMetaType::QRect:
        // Rectangles that are wider than an int are none.
        return {QRect(), QRect(9, 9, -5, -5), QRect(INT_MIN, INT_MIN, 1, 1), QRect(INT_MAX / 2, INT_MAX / 2, 1, 1),
                QRect(0, 0, INT_MAX, INT_MAX)};
    case QMetaType::QPixmap:
        return {QPixmap(), QBitmap(1, 1), QPixmap::fromImage(TinyImage(QImage::Format_RGB16))};
    case QMetaType::QImage:
        return {QImage(), TinyImage(QImage::Format_Mono), TinyImage(QImage::Format_Indexed8),
                QImage(1, MANY, QImage::Format_Alpha8), QImage(MANY, 1, QImage::Format_RGB16)};
    case QMetaType::QIcon:
        return {QIcon(), QIcon(QPixmap(1, 1))};
    case QMetaType::QTime:
        return {QTime(), QTime(0, 0), QTime(23, 59, 59, 999)};
    case QMetaType::QDate:
        return {QDate(), QDate(-4712, 1, 1), QDate(1, 1, 1), QDate(9999, 12, 31)};
    case QMetaType::QDateTime:
        return {QDateTime(), QDateTime::fromMSecsSinceEpoch(Long::min()), QDateTime::fromMSecsSinceEpoch(Long::max())};
    case QMetaType::QFont:
        return {QFont(), QFont(QStringLiteral("no such family"), 400), QFont(QString(), 1)};
    default:
        return {};
    }
}

// What Qt says of values that it refuses, and the LED matrix of its own ones.
QStringList WarningsOf(const QMetaProperty& property, const QVariant& value)
{
    struct Rule
    {
        QRegularExpression property;
        bool (*isRefused)(int least, int most);
        const char* warning;
    };
    static const QRegularExpression SIZE("^QWidget::(minimum|maximum)(Size|Width|Height)$");
    static const QRegularExpression LEDS("^QLedMatrix::(rows|columns)$");
    static const Rule RULES[] = {
        {SIZE, [](int least, int) { return least < 0; }, "Negative sizes"},
        {SIZE, [](int, int most) { return most > QWIDGETSIZE_MAX; }, "The largest allowed size is"},
        {LEDS, [](int least, int) { return least == 0; }, "no rows or columns to display"},
        {LEDS, [](int, int most) { return most == INT_MAX; }, "are too many"},
        {QRegularExpression("^QComboBox::maxVisibleItems$"), [](int least, int) { return least < 0; }, "Invalid max"},
        {QRegularExpression("^QComboBox::maxCount$"), [](int least, int) { return least < 0; }, "Invalid count"},
        {QRegularExpression("^QSpinBox::displayIntegerBase$"),
         [](int least, int most) { return least < 2 || most > 36; }, "Invalid base"},
    };
    const QSize size = value.userType() == QMetaType::QSize ? value.toSize() : QSize(value.toInt(), value.toInt());
    const auto [least, most] = std::minmax({size.width(), size.height()});
    QStringList warnings;
    for (const Rule& rule : RULES) {
        if (NameOf(property).contains(rule.property) && rule.isRefused(least, most))
            warnings.append(rule.warning);
    }
    return warnings;
}

QString Text(const QVariant& value)
{
    QString text;
    QDebug(&text) << value;
    return text;
}

// Values that are no numbers are the same as well, and so are copies of a picture.
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
        // Who takes gigabytes for a large number falls here.
        const rlimit enough{rlim_t(4) << 30, rlim_t(4) << 30};
        QCOMPARE(setrlimit(RLIMIT_AS, &enough), 0);
#endif
        LoadStyleSheet("dark")->apply();
    }

    void takesWhateverItIsTold_data()
    {
        QTest::addColumn<QString>("className");
        for (const Entry& entry : Entries())
            QTest::newRow(qPrintable(entry.className)) << entry.className;
    }

    void takesWhateverItIsTold()
    {
        QFETCH(QString, className);
        const Entry& entry = *FindEntry(className);
        auto stage = std::make_unique<Stage>(entry);
        const QMetaObject* meta = stage->subject->metaObject();
        for (int i = 0; i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            if (!property.isWritable())
                continue;
            // Properties with a say in others leave their traces; those of every widget have none.
            if (NameOf(property.enclosingMetaObject()) != "QWidget")
                stage = std::make_unique<Stage>(entry);
            for (const QVariant& value : HardValues(property)) {
                InRow(NameOf(property) + " = " + Text(value).left(100));
                for (const QString& warning : WarningsOf(property, value))
                    ExpectWarning(warning);
                Tell(*stage, property, value);
                if (QTest::currentTestFailed())
                    return;
            }
        }
    }

private:
    static void Tell(Stage& stage, const QMetaProperty& property, const QVariant& value)
    {
        const QVariant before = property.read(stage.subject);
        std::unique_ptr<QSignalSpy> changes;
        if (property.hasNotifySignal())
            changes = std::make_unique<QSignalSpy>(stage.subject, property.notifySignal());
        property.write(stage.subject, value);
        const QVariant after = property.read(stage.subject);
        // It takes back what it made of the value, and what it had.
        property.write(stage.subject, after);
        QVERIFY2(!IsOurs(property) || IsSame(property.read(stage.subject), after), "does not take what it returned");
        stage.Perform();
        const bool isTold = !changes || !changes->isEmpty();
        QVERIFY2(!IsOurs(property) || isTold || IsSame(after, before), "changed in silence");
        property.write(stage.subject, before);
        QVERIFY2(!IsOurs(property) || IsSame(property.read(stage.subject), before), "does not take what it had");
    }
};

VX_TEST_MAIN(tst_Properties)
#include "tst_Properties.moc"
