#include <UI/Kit/ZTimeEdit.h>

#include <Support/Input.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QLineEdit>

namespace {

// In a text, a bar marks the cursor, and two bars enclose a selection.
struct Field : ZTimeEdit
{
    using ZTimeEdit::lineEdit;

    explicit Field(const QString& format = "hh:mm:ss", QWidget* parent = nullptr) : ZTimeEdit(parent)
    {
        setDisplayFormat(format);
        updateStyle();
        if (format.startsWith('H'))
            setTimeRange({1, 0, 30}, {22, 30, 30});
    }

    void start(const QString& marked)
    {
        setTime(QTime::fromString(QString(marked).remove('|'), displayFormat()));
        lineEdit()->setCursorPosition(marked.indexOf('|'));
        if (marked.count('|') > 1)
            lineEdit()->setSelection(marked.indexOf('|'), marked.lastIndexOf('|') - marked.indexOf('|') - 1);
    }

    QString result() const { return lineEdit()->text().insert(lineEdit()->cursorPosition(), '|'); }
};

} // namespace

class tst_ZTimeEdit : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    void keysEditTheTime()
    {
        const auto typed = [&](const char* format, const char* before, const char* text) {
            Field field(format);
            field.start(before);
            QTest::keyClicks(&field, text);
            return field.result();
        };
        const auto pressed = [&](const char* format, const char* before, Qt::Key key) {
            Field field(format);
            field.start(before);
            QTest::keyClick(&field, key);
            return field.result();
        };
        QCOMPARE(typed("hh:mm:ss", "|12:34:56", "5"), QString("|12:34:56"));
        QCOMPARE(typed("hh:mm:ss", "|12:34:56", "235958"), QString("23:59:58|"));
        QCOMPARE(typed("hh:mm:ss", "|12:34:56|", "23"), QString("23:|34:56"));
        QCOMPARE(pressed("hh:mm:ss", "1|1:11:11", Qt::Key_Backspace), QString("|01:11:11"));
        QCOMPARE(pressed("hh:mm:ss", "12:34:56|", Qt::Key_Backspace), QString("12:34:5|0"));
        QCOMPARE(pressed("hh:mm:ss", "|12:34:56|", Qt::Key_Delete), QString("|00:00:00"));
        QCOMPARE(typed("hh:mm:ss", "12:|34:56", "x"), QString("12:|34:56"));
        QCOMPARE(typed("hh:mm:ss.zzz", "12:34:56.|789|", "1"), QString("12:34:56.1|00"));
        QCOMPARE(pressed("h:mm_AP", "1|:30_PM", Qt::Key_Backspace), QString("|12:30_PM"));
        QCOMPARE(typed("h:mm_AP", "|12:30_PM", "0"), QString("|2:30_PM"));
        QCOMPARE(typed("h:mm_AP", "1:30_|PM|", "am"), QString("1:30_AM|"));
        QCOMPARE(typed("'at'hh'h'", "at1|2h", "5"), QString("at15h|"));
        QCOMPARE(typed("mm''ss", u8"|24\u201935", "1122"), QString(u8"11\u201922|"));
        QCOMPARE(typed("HH:mm:ss", "|12:34:56", "23"), QString("22:|30:30"));
        QCOMPARE(pressed("HH:mm:ss", "|22:15:00", Qt::Key_Up), QString("|22:30:30"));
    }

    void readOnlyTimeIsNotEdited()
    {
        Field field;
        field.start("1|2:34:56");
        field.setReadOnly(true);
        QTest::keyClick(&field, Qt::Key_Backspace);
        QTest::keyClicks(&field, "1");
        QCOMPARE(field.text(), QString("12:34:56"));
    }

    void hiddenPartsKeepTheirValue()
    {
        for (const char* format : {"mm:ss", "mm_AP", "mm.zzz"}) {
            Field field(format);
            field.setTime({14, 25, 36, 500});
            field.lineEdit()->setCursorPosition(2);
            QTest::keyClick(&field, Qt::Key_Backspace);
            QCOMPARE(field.time(), QTime(14, 20, 36, 500));
        }
    }

    void digitsOfAnyScriptAreShownAsLatinDigits()
    {
        QWidget window;
        Field field("hh:mm:ss AP", &window);
        field.setTime({14, 25, 36});
        const QLocale arabic("ar_EG");
        window.setLocale(arabic);
        QCOMPARE(field.text(), "02:25:36 " + arabic.pmText());
        field.lineEdit()->setCursorPosition(0);
        QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, QString(QChar(0x0661)), Qt::NoModifier);
        QCOMPARE(field.time(), QTime(12, 25, 36));
        QTest::keyClicks(&field, "91");
        QCOMPARE(field.time(), QTime(23, 25, 36));
    }

    void sizeHintFollowsTheStyleTag()
    {
        QWidget window;
        window.setStyleSheet("ZTimeEdit[styleTag=\"big\"] { padding: 20px }");
        Field early("hh:mm", &window);
        early.setStyleTag("big");
        Field late("hh:mm", &window);
        window.show();
        QVERIFY(late.sizeHint().height() < early.sizeHint().height());
        late.setStyleTag("big");
        QCOMPARE(late.sizeHint(), early.sizeHint());
    }

    void stepsStopAtMidnight()
    {
        Field field("hh:mm:ss.zzz AP");
        const auto stepped = [&](QTimeEdit::Section section, const QTime& time, int steps) {
            field.setTime(time);
            field.setCurrentSection(section);
            field.stepBy(steps);
            return field.time();
        };
        QCOMPARE(stepped(QTimeEdit::HourSection, {23, 30}, 1), QTime(23, 59, 59, 999));
        QCOMPARE(stepped(QTimeEdit::HourSection, {0, 30}, -1000000000), QTime(0, 0));
        QCOMPARE(stepped(QTimeEdit::SecondSection, {10, 59, 59, 5}, 1), QTime(11, 0, 0, 5));
        QCOMPARE(stepped(QTimeEdit::AmPmSection, {10, 0}, 1), QTime(10, 0));
        field.setMillisecondStep(40);
        QCOMPARE(stepped(QTimeEdit::MSecSection, {10, 0}, 2), QTime(10, 0, 0, 80));
        field.setMillisecondStep(-3);
        field.setTimeClamped(QTime());
        QCOMPARE(stepped(QTimeEdit::MSecSection, field.time(), 1), QTime(10, 0, 0, 81));
    }

    void formatFollowsFocusAndTime()
    {
        QWidget window;
        window.setLocale(QLocale("ar_EG"));
        Field field("hh:mm:ss", &window);
        Support::ShowActive(window);
        window.setFocus();
        field.setTimeRange({12, 0}, {12, 0});
        field.setDisplayFormatList({"yyyy", "", "hh:mm", "hh:mm:ss"});
        QCOMPARE(field.text() + field.minimumTime().toString(), QString("12:0012:00:00"));
        field.setTimeRange({1, 0}, {23, 59, 59});
        QVERIFY(!Support::TurnWheel(&field, {0, 120}));
        field.lineEdit()->setCursorPosition(4);
        field.setStyleTag("shrinkWidth");
        QCOMPARE(field.width(), field.fontMetrics().horizontalAdvance("12:00") + 4);
        field.setProperty("forceMaxtimeFormat", true);
        QCOMPARE(field.result(), QString("12:00:0|0"));
        field.setProperty("forceMaxtimeFormat", false);
        field.setFocus(Qt::TabFocusReason);
        QCOMPARE(field.lineEdit()->selectedText(), QString("12"));
        QCOMPARE(QAccessible::queryAccessibleInterface(&field)->text(QAccessible::Value), QString("12:00:00"));
        QVERIFY(Support::TurnWheel(&field, {0, 120}));
        QCOMPARE(field.time(), QTime(13, 0));

        QSignalSpy entered(&field, &ZTimeEdit::EnterPressed);
        QTest::keyClick(&field, Qt::Key_Enter);
        QCOMPARE(entered.size(), 1);
        QVERIFY(!field.hasFocus());
        QVERIFY(!field.lineEdit()->hasSelectedText());
        field.setTime({13, 0, 7});
        QCOMPARE(field.width(), field.fontMetrics().horizontalAdvance("13:00:07") + 4);
        field.setStyleTag({});
        QVERIFY(field.maximumWidth() > field.width());

        // The cursor leaves an incomplete section, which the new format does not have.
        field.clearMinimumTime();
        field.setDisplayFormatList({"mm:ss", "hh:mm:ss.zzz"});
        for (const bool byTab : {false, true}) {
            field.setTime({0, 0, 7, 5});
            field.lineEdit()->setSelection(9, 3);
            field.lineEdit()->del();
            if (byTab) {
                QTest::keyClick(&field, Qt::Key_Backtab);
            } else {
                field.lineEdit()->setSelection(0, 2);
                field.lineEdit()->setCursorPosition(9);
            }
            QCOMPARE(field.text(), QString("00:07"));
            QVERIFY(field.currentSectionIndex() < field.sectionCount());
        }
        // A slot may delete the field.
        auto* doomed = new ZTimeEdit;
        connect(doomed, &QTimeEdit::timeChanged, doomed, [doomed] { delete doomed; });
        doomed->stepBy(1);
        field.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(field.text(), QString("00:07")); // not mirrored
    }
};

VX_TEST_MAIN(tst_ZTimeEdit)
#include "tst_ZTimeEdit.moc"
