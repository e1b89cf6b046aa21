#include <Catalogue/Look.h>
#include <Catalogue/Scene.h>
#include <Examples/Support/BuiltInStyleSheets.h>
#include <Gallery/Inspector/PropertyValue.h>
#include <Gallery/Inspector/StyleSheetLine.h>

#include <Support/TestCase.h>

#include <QAccessible>
#include <QMetaProperty>
#include <QStyle>
#include <QTranslator>

using namespace Zelkor::Catalogue;
using namespace Zelkor::Gallery;
using Zelkor::Examples::LoadStyleSheet;

namespace {

constexpr int NARROW = 48;
constexpr int FONT_STEP = 7; ///< points between the two font sizes

/// What surrounds every widget of the application.
struct Surroundings
{
    QString sheet = QStringLiteral("dark");
    QString language;
    int fontStep = 0;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

/// A change of what surrounds a widget.
struct ApplicationChange
{
    const char* name;
    Surroundings from;
    Surroundings to;
};

const ApplicationChange APPLICATION_CHANGES[] = {
    {"right to left", {}, {"dark", {}, 0, Qt::RightToLeft}},
    {"left to right", {"dark", {}, 0, Qt::RightToLeft}, {}},
    {"German", {}, {"dark", "de", 0, Qt::LeftToRight}},
    {"French after Japanese", {"dark", "ja", 0, Qt::LeftToRight}, {"dark", "fr", 0, Qt::LeftToRight}},
    // Qt changes the font of the application only where there is no sheet for all of it.
    {"larger application font", {"", {}, 0, Qt::LeftToRight}, {"", {}, FONT_STEP, Qt::LeftToRight}},
    {"smaller application font", {"", {}, FONT_STEP, Qt::LeftToRight}, {"", {}, 0, Qt::LeftToRight}},
    {"light", {}, {"light", {}, 0, Qt::LeftToRight}},
    {"dark", {"light", {}, 0, Qt::LeftToRight}, {}},
};

/// A change of the widget itself.
struct WidgetChange
{
    const char* name;
    void (*prepare)(Stage&); ///< before either is shown
    void (*change)(Stage&);  ///< of the widget that is shown
    void (*make)(Stage&);    ///< of the widget that it is compared with, before that is shown
};

void Nothing(Stage&) {}

void EnlargeFont(Stage& stage)
{
    QFont font = stage.font();
    font.setPointSize(font.pointSize() + FONT_STEP);
    stage.setFont(font);
}

const WidgetChange WIDGET_CHANGES[] = {
    {"disabled", Nothing, [](Stage& stage) { stage.widget->setEnabled(false); },
     [](Stage& stage) { stage.widget->setEnabled(false); }},
    {"enabled", [](Stage& stage) { stage.setEnabled(false); }, [](Stage& stage) { stage.setEnabled(true); },
     [](Stage& stage) { stage.setEnabled(true); }},
    {"larger font", Nothing, EnlargeFont, EnlargeFont},
    {"hidden and shown", Nothing,
     [](Stage& stage) {
         stage.widget->hide();
         Settle();
         stage.widget->show();
     },
     Nothing},
    {"window hidden and shown", Nothing,
     [](Stage& stage) {
         stage.hide();
         Settle();
         stage.show();
     },
     Nothing},
    {"narrow and wide", Nothing,
     [](Stage& stage) {
         const QSize size = stage.size();
         stage.resize(NARROW, NARROW);
         Settle();
         stage.grab();
         stage.resize(size);
     },
     Nothing},
};

/// A value that a person could choose instead of `old`; invalid for types that have no such value.
QVariant OtherValue(const QMetaProperty& property, const QVariant& old)
{
    if (property.isEnumType()) {
        const QMetaEnum keys = property.enumerator();
        return keys.value(keys.value(0) == EnumNumber(old) ? keys.keyCount() - 1 : 0);
    }
    switch (old.userType()) {
    case QMetaType::Bool:
        return !old.toBool();
    case QMetaType::Int:
        return old.toInt() + 3;
    case QMetaType::LongLong:
        return old.toLongLong() + 3000;
    case QMetaType::Double:
        return old.toDouble() > 1 ? old.toDouble() / 2 : old.toDouble() + 1;
    case QMetaType::QString:
        if (QByteArray(property.name()).endsWith("Style"))
            return QStringLiteral("border: 2px solid red;");
        return QStringLiteral("Longer than before, & other");
    case QMetaType::QStringList:
        return QStringList{QStringLiteral("h:mm"), QStringLiteral("h:mm:ss")};
    case QMetaType::QColor:
        return QColor(53, 103, 17);
    case QMetaType::QPoint:
        return old.toPoint() + QPoint(3, 5);
    case QMetaType::QRect:
        return QRect(5, 6, 17, 8);
    case QMetaType::QSize:
        return old.toSize().expandedTo(QSize(0, 0)) + QSize(5, 7);
    case QMetaType::QTime:
        return QTime(1, 2, 3);
    default:
        return {};
    }
}

QString NameOf(const QMetaObject* meta)
{
    return QString::fromLatin1(meta->className()).section("::", -1);
}

// A row for each property that a class of ours declares.
void AddRowsOfOwnProperties()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("property");
    for (const Entry& entry : Entries()) {
        QWidget parent;
        const QMetaObject* meta = CreateBare(entry, &parent)->metaObject();
        for (int i = 0; i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            const QString declaredBy = NameOf(property.enclosingMetaObject());
            const bool isOurs = !declaredBy.startsWith('Q') || FindEntry(declaredBy);
            if (isOurs && property.isWritable() && meta->indexOfProperty(property.name()) == i)
                QTest::addRow("%s, %s", qPrintable(entry.className), property.name())
                    << entry.className << property.name();
        }
    }
}

} // namespace

/// What is changed while it is shown looks and sounds like what was made so.
class tst_CatalogueChanges : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QAccessible::setActive(true);
        QApplication::setCursorFlashTime(0);
        initialFont = QApplication::font();
        for (const char* code : {"de", "fr", "ja"}) {
            auto* translator = new QTranslator(this);
            QVERIFY(translator->load(QStringLiteral(VX_TRANSLATIONS "/VxUiWidgets_") + code));
            translators.insert(code, translator);
        }
    }

    void surroundingsChange_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("change");
        for (int change = 0; change < int(std::size(APPLICATION_CHANGES)); ++change)
            AddRows(APPLICATION_CHANGES[change].name, change);
    }

    void surroundingsChange()
    {
        QFETCH(QString, className);
        QFETCH(int, state);
        QFETCH(int, change);
        const Entry& entry = *FindEntry(className);
        const ApplicationChange& way = APPLICATION_CHANGES[change];
        Surround(way.from);
        Stage changed(entry, entry.states[state]);
        changed.Show();
        Surround(way.to);
        Stage made(entry, entry.states[state]);
        made.Show();
        Compare(changed, made);
    }

    void widgetChanges_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("change");
        for (int change = 0; change < int(std::size(WIDGET_CHANGES)); ++change)
            AddRows(WIDGET_CHANGES[change].name, change);
    }

    void widgetChanges()
    {
        QFETCH(QString, className);
        QFETCH(int, state);
        QFETCH(int, change);
        const Entry& entry = *FindEntry(className);
        const WidgetChange& way = WIDGET_CHANGES[change];
        Surround({});
        Stage changed(entry, entry.states[state]);
        way.prepare(changed);
        changed.Show();
        changed.grab();
        way.change(changed);
        Stage made(entry, entry.states[state]);
        way.make(made);
        made.Show();
        Compare(changed, made);
    }

    void pixelRatioChanges_data() { AddRowsOfAllStates(); }

    void pixelRatioChanges()
    {
        QFETCH(QString, className);
        QFETCH(int, state);
        const Entry& entry = *FindEntry(className);
        Surround({});
        Stage changed(entry, entry.states[state]);
        changed.Show();
        changed.grab();
        Stage made(entry, entry.states[state]);
        made.Show();
        Compare(changed, made, 2);
        Stage fresh(entry, entry.states[state]);
        fresh.Show();
        Compare(changed, fresh, 1);
    }

    void stateComesWhileShown_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("state");
        for (const Entry& entry : Entries()) {
            for (const int i : TestedStates(entry)) {
                if (!entry.states[i].create)
                    QTest::addRow("%s, %s", qPrintable(entry.className), qPrintable(entry.states[i].name))
                        << entry.className << i;
            }
        }
    }

    void stateComesWhileShown()
    {
        QFETCH(QString, className);
        QFETCH(int, state);
        const Entry& entry = *FindEntry(className);
        Surround({});
        Stage changed(entry.create);
        changed.Show();
        changed.grab();
        entry.states[state].apply(changed.widget);
        // Sheets choose by this property, which Qt reads when it polishes a widget; that is for the program to ask.
        for (QWidget* part : QList<QWidget*>{changed.widget} + changed.widget->findChildren<QWidget*>()) {
            part->style()->unpolish(part);
            part->style()->polish(part);
        }
        Stage made(entry, entry.states[state]);
        made.Show();
        Compare(changed, made);
    }

    void propertyChanges_data() { AddRowsOfOwnProperties(); }

    void propertyChanges()
    {
        QFETCH(QString, className);
        QFETCH(QString, property);
        const Entry& entry = *FindEntry(className);
        Surround({});
        Stage changed(entry, entry.states[entry.pictured]);
        changed.Show();
        changed.grab();
        QObject* subject = changed.Subject(entry);
        const QByteArray name = property.toLatin1();
        const QMetaProperty meta = subject->metaObject()->property(subject->metaObject()->indexOfProperty(name));
        const QVariant value = OtherValue(meta, ReadProperty(meta, subject));
        if (!value.isValid())
            QSKIP("no other value of this type");
        subject->setProperty(name, value);
        Stage made(entry, entry.states[entry.pictured]);
        // The sheet sets properties once, and that before the program does.
        for (QWidget* part : made.findChildren<QWidget*>())
            part->ensurePolished();
        made.Subject(entry)->setProperty(name, value);
        made.Show();
        Compare(changed, made);
    }

    void propertyChangesBySheet_data() { AddRowsOfOwnProperties(); }

    void propertyChangesBySheet()
    {
        QFETCH(QString, className);
        QFETCH(QString, property);
        const Entry& entry = *FindEntry(className);
        Surround({});
        Stage changed(entry, entry.states[entry.pictured]);
        changed.Show();
        changed.grab();
        auto* subject = qobject_cast<QWidget*>(changed.Subject(entry));
        if (!subject)
            QSKIP("not a widget");
        const QMetaObject& object = *subject->metaObject();
        const QMetaProperty meta = object.property(object.indexOfProperty(property.toLatin1()));
        const QString line = StyleSheetLine(meta, OtherValue(meta, ReadProperty(meta, subject)));
        if (line.isEmpty())
            QSKIP("not for style sheets");
        const QString sheet = QString(object.className()).replace("::", "--") + " { " + line + " }";
        subject->setStyleSheet(subject->styleSheet() + sheet);
        Stage made(entry, entry.states[entry.pictured]);
        auto* other = qobject_cast<QWidget*>(made.Subject(entry));
        other->setStyleSheet(other->styleSheet() + sheet);
        made.Show();
        Compare(changed, made);
    }

private:
    static void AddRows(const char* change, int number)
    {
        for (const Entry& entry : Entries()) {
            // It holds a sample that wears a sheet, for which Qt keeps the old font of the application, and a
            // QComboBox, which keeps the least size of that font.
            if (QByteArray(change).endsWith("application font") && entry.className == "ZRuntimeStylesheetEditor")
                continue;
            for (const int i : TestedStates(entry))
                QTest::addRow("%s, %s, %s", change, qPrintable(entry.className), qPrintable(entry.states[i].name))
                    << entry.className << i << number;
        }
    }

    static void Compare(Stage& changed, Stage& made, qreal pixelRatio = 1)
    {
        const QString difference = Difference(changed, made, pixelRatio);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }

    void Surround(const Surroundings& wanted)
    {
        if (wanted.direction != now.direction)
            QApplication::setLayoutDirection(wanted.direction);
        if (wanted.language != now.language) {
            if (!now.language.isEmpty())
                QCoreApplication::removeTranslator(translators[now.language]);
            if (!wanted.language.isEmpty())
                QCoreApplication::installTranslator(translators[wanted.language]);
        }
        if (wanted.sheet != now.sheet) {
            ZStyleSheet sheet = *LoadStyleSheet(wanted.sheet.isEmpty() ? "dark" : wanted.sheet);
            if (wanted.sheet.isEmpty())
                sheet.text.clear();
            sheet.apply();
        }
        if (wanted.fontStep != now.fontStep) {
            QFont font = initialFont;
            font.setPointSize(font.pointSize() + wanted.fontStep);
            QApplication::setFont(font);
        }
        now = wanted;
        Settle();
    }

    QFont initialFont;
    QMap<QString, QTranslator*> translators;
    Surroundings now{"none yet", {}, 0, Qt::LeftToRight};
};

VX_TEST_MAIN(tst_CatalogueChanges)
#include "tst_CatalogueChanges.moc"
