#include <UI/Kit/Internal/TimeFormat.h>
#include <UI/Kit/ZTimeEdit.h>

#include <Support/Input.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QClipboard>
#include <QLineEdit>
#include <QSignalSpy>

using namespace Zelkor::Vx::UI::Kit;

namespace {

// A format and what a person does to times in it: the text before, the keys and the text after. In a text, a bar is the
// cursor, and two are around what is selected. Keys are digits and letters, "<" Backspace, ">" Delete, "^" and "_" up
// and down, "!" Enter, and "*" inserts "1:02:03".
using Rows = QPair<QString, QStringList>;

struct Field : ZTimeEdit
{
    using ZTimeEdit::lineEdit;

    explicit Field(const QString& format = "hh:mm:ss", QWidget* parent = nullptr) : ZTimeEdit(parent)
    {
        setDisplayFormat(format);
        updateStyle();
    }

    void start(const QString& marked)
    {
        setTime(QTime::fromString(QString(marked).remove('|'), displayFormat()));
        lineEdit()->setCursorPosition(marked.indexOf('|'));
        if (marked.count('|') > 1)
            lineEdit()->setSelection(marked.indexOf('|'), marked.lastIndexOf('|') - marked.indexOf('|') - 1);
    }

    QString result() const { return lineEdit()->text().insert(lineEdit()->cursorPosition(), '|'); }

    void type(const QString& keys)
    {
        const Qt::Key named[] = {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Up, Qt::Key_Down, Qt::Key_Enter, Qt::Key_V};
        for (const QChar key : keys) {
            const int index = QString("<>^_!*").indexOf(key);
            QTest::keyClick(this, index < 0 ? Qt::Key(key.toUpper().unicode()) : named[index],
                            key == '*' ? Qt::ControlModifier : Qt::NoModifier);
        }
    }
};

} // namespace

class tst_ZTimeEdit : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void typing()
    {
        QLocale::setDefault(QLocale::c());
        QGuiApplication::clipboard()->setText("1:02:03");
        const QVector<Rows> tables{
            {"hh:mm:ss",
             {"|12:34:56 5 |12:34:56", "1|2:34:56 5 15:|34:56", "|12:34:56 235958 23:59:58|", "2|0:34:56 4 2|0:34:56",
              "12|:34:56 5 12:5|4:56", "12:34:56| 5 12:34:56|", "|00|:00:00 0930 09:30:|00", "|12:34:56| 23 23:|34:56",
              "12:34:56| << 12:34:|00", "1|1:11:11 < |01:11:11", "12:|34|:56 > 12:|00:56", "|12:34:56| > |00:00:00",
              "12|:34:|56 < 12|:00:56", "12:|34:56 <x 12:|34:56", "|12:34:56| *! 01:02:03|"}},
            {"hh:mm:ss.zzz", {"12:34:56.7|89 5< 12:34:56.7|09", "12:34:56.|789| 1 12:34:56.1|00"}},
            {"h:mm", {"|9:30 1 1|9:30", "19|:30 < 1|0:30", "|12|:30 1 1|:30"}},
            {"h:mm_AP",
             {"1|:30_PM < |12:30_PM", "|12:30_PM 0 |2:30_PM", "1:30_|PM| > 1:30_|PM", "1:30_|PM| am 1:30_AM|",
              "12|:30_PM ^ |1:30_PM"}},
            {"'at'hh'h'", {"at1|2h 5 at15h|"}},
            {"mm''ss", {u8"|24\u201935 1122 11\u201922|", u8"|24\u201935| > |00\u201900"}},
            // Limited to 01:00:30 ... 22:30:30.
            {"HH:mm:ss",
             {"|12:34:56 23 22:|30:30", "1|2:34:56 < |02:34:56", "|01|:30:30 0 0|1:00:30", "|22:15:00 ^^ |22:30:30",
              "|02:15:00 __ |01:00:30"}},
        };
        for (const auto& [format, rows] : tables) {
            for (const QString& row : rows) {
                InRow(row);
                const QStringList parts = row.split(' ');
                Field field(format);
                if (format.startsWith('H'))
                    field.setTimeRange({1, 0, 30}, {22, 30, 30});
                field.start(parts[0]);
                field.type(parts[1]);
                QCOMPARE(field.result(), parts[2]);
                field.setReadOnly(true);
                field.type("<>15");
                QCOMPARE(field.text(), QString(parts[2]).remove('|'));
            }
        }
    }

    void hiddenPartsKeepTheirValue_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<int>("key");
        QTest::addColumn<QTime>("expected");
        QTest::newRow("Backspace, hours hidden") << "mm:ss" << int(Qt::Key_Backspace) << QTime(14, 20, 36, 500);
        QTest::newRow("digit, hours hidden") << "mm:ss" << int(Qt::Key_1) << QTime(14, 15, 36, 500);
        QTest::newRow("hours hidden but for AM/PM") << "mm_AP" << int(Qt::Key_Backspace) << QTime(14, 20, 36, 500);
        QTest::newRow("seconds hidden") << "mm.zzz" << int(Qt::Key_Backspace) << QTime(14, 20, 36, 500);
    }

    void hiddenPartsKeepTheirValue()
    {
        QFETCH(QString, format);
        QFETCH(int, key);
        QFETCH(QTime, expected);
        Field field(format);
        field.setTime({14, 25, 36, 500});
        field.lineEdit()->setCursorPosition(key == Qt::Key_1 ? 0 : 2);
        QTest::keyClick(&field, Qt::Key(key));
        QCOMPARE(field.time(), expected);
    }

    void digitsOfOtherScriptsAreTypedAndShownAsLatinOnes_data()
    {
        QTest::addColumn<bool>("isOfParent");
        QTest::newRow("locale of the parent") << true;
        QTest::newRow("locale of the field") << false;
    }

    void digitsOfOtherScriptsAreTypedAndShownAsLatinOnes()
    {
        QFETCH(bool, isOfParent);
        QWidget window;
        Field field("hh:mm:ss AP", &window);
        field.setStyleTag("shrinkWidth");
        field.setTime({14, 25, 36});
        window.show();
        const QLocale arabic("ar_EG");
        (isOfParent ? &window : &field)->setLocale(arabic);
        QCOMPARE(field.text(), "02:25:36 " + arabic.pmText());
        QCOMPARE(field.width(), field.fontMetrics().horizontalAdvance(field.text()) + 4);
        field.lineEdit()->setCursorPosition(0);
        QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, QString(QChar(0x0661)), Qt::NoModifier);
        QCOMPARE(field.time(), QTime(12, 25, 36));
        field.type("9");
        QCOMPARE(field.time(), QTime(12, 25, 36));
        field.type("1");
        QCOMPARE(field.time(), QTime(23, 25, 36));
    }

    void upAndDownSwitchTheHalfOfTheDay()
    {
        Field field("hh:mm AP");
        field.setTime({10, 30});
        field.setCurrentSection(QTimeEdit::AmPmSection);
        field.type("_^");
        QCOMPARE(field.time(), QTime(22, 30));
        field.type("^");
        QCOMPARE(field.time(), QTime(22, 30));
        field.type("_");
        QCOMPARE(field.time(), QTime(10, 30));
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

    void variantsOfAFormatCountOnce()
    {
        QStringList variants;
        for (int i = 0; i < 1000; ++i)
            variants += QString("hh:mm 'of take %1'").arg(i);
        QCOMPARE(DistinctTimeFormats(variants).size(), 1);
        // Digits after a number that has no leading zero, quotes in a text, letters of parts in quotes.
        const QStringList formats{"'h'",        "h'1'mm", "h'x'mm", "h 1mm",   "hmm", "hhmm",     "h'h'mm",   "'m'hh",
                                  "hh' o''ck'", "hh'",    "m:ss",   "m'2' ss", "yy",  "hh:mm AP", "hh'AP'mm", "s.z"};
        for (int i = 0; i < formats.size(); ++i) {
            const QStringList list = formats.mid(i) + formats.mid(0, i);
            for (const QTime& time : {QTime(1, 2), QTime(1, 20, 3), QTime(21, 1, 45, 60), QTime(0, 0, 2, 300)})
                QCOMPARE(ChooseTimeFormat(DistinctTimeFormats(list), time), ChooseTimeFormat(list, time));
        }
    }

    void steps()
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
        QCOMPARE(stepped(QTimeEdit::MinuteSection, {10, 0}, -1), QTime(9, 59));
        QCOMPARE(stepped(QTimeEdit::AmPmSection, {10, 0}, 1), QTime(10, 0));
        field.setMillisecondStep(40);
        QCOMPARE(stepped(QTimeEdit::MSecSection, {10, 0}, 2), QTime(10, 0, 0, 80));
        field.setMillisecondStep(-3);
        field.setTimeClamped(QTime());
        QCOMPARE(stepped(QTimeEdit::MSecSection, field.time(), 1), QTime(10, 0, 0, 81));
    }

    void focusFormatAndWheel()
    {
        QWidget window;
        window.setLocale(QLocale("ar_EG"));
        Field field("hh:mm:ss", &window);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
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
        QCOMPARE(field.result(), QString("12:0|0"));
        field.setFocus(Qt::TabFocusReason);
        QCOMPARE(field.lineEdit()->selectedText(), QString("12"));
        QCOMPARE(QAccessible::queryAccessibleInterface(&field)->text(QAccessible::Value), QString("12:00:00"));
        QVERIFY(Support::TurnWheel(&field, {0, 120}) && field.time() == QTime(13, 0));

        QSignalSpy entered(&field, &ZTimeEdit::EnterPressed);
        field.type("!");
        QVERIFY(entered.size() == 1 && !field.hasFocus() && !field.lineEdit()->hasSelectedText());
        field.setTime({13, 0, 7});
        QCOMPARE(field.width(), field.fontMetrics().horizontalAdvance("13:00:07") + 4);
        field.setStyleTag({});
        QVERIFY(field.maximumWidth() > field.width() && field.minimumWidth() == 0);

        // A cursor that leaves an unfinished section, which goes with the format that fits then.
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
        // Who hears of the time last may delete the field.
        auto* doomed = new ZTimeEdit;
        connect(doomed, &QTimeEdit::timeChanged, doomed, [doomed] { delete doomed; });
        doomed->stepBy(1);
        field.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(field.text(), QString("00:07")); // the minutes stay on the left
    }
};

VX_TEST_MAIN(tst_ZTimeEdit)
#include "tst_ZTimeEdit.moc"
