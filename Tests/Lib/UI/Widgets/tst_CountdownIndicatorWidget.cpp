#include <UI/Widgets/CountdownIndicatorWidget.h>

#include <Support/TestCase.h>

#include <QAccessible>
#include <QLabel>

using Zelkor::Vx::CountdownIndicatorWidget;

class tst_CountdownIndicatorWidget : public Support::TestCase
{
    Q_OBJECT

    const QStringList numbers{"number1Label", "number2Label", "number3Label"};
    const QStringList captions{"caption1Label", "caption2Label", "caption3Label"};

private Q_SLOTS:
    void valueSelectsTheUnits()
    {
        CountdownIndicatorWidget countdown(nullptr);
        const auto shown = [&](quint64 seconds) {
            countdown.SetSeconds(seconds);
            QStringList texts;
            for (const QString& name : numbers + captions)
                texts << countdown.findChild<QLabel*>(name)->text();
            return texts.join(' ');
        };
        QCOMPARE(shown(0), QString("00 00 00 hr min sec"));
        QCOMPARE(shown(356400), QString("99 00 00 hr min sec"));
        QCOMPARE(shown(356401), QString("04 03 00 day hr min"));
        QCOMPARE(shown(8553600), QString("99 00 00 day hr min"));
        QCOMPARE(shown(8553601), QString("03 09 00 mon day hr"));
        QCOMPARE(shown(31536000), QString("12 05 00 mon day hr"));
        QCOMPARE(shown(31536001), QString("01 00 00 yr mon day"));
        QCOMPARE(shown(3153600000), QString("10 00 00 yr mon day"));
    }

    void accessibleNameHasWholeNumbers()
    {
        CountdownIndicatorWidget countdown(nullptr);
        countdown.SetSeconds(3153600000);
        countdown.setAccessibleName("Starts in");
        const QString name = QAccessible::queryAccessibleInterface(&countdown)->text(QAccessible::Name);
        QCOMPARE(name, QString("Starts in 100 yr 0 mon 0 day"));
    }
};

VX_TEST_MAIN(tst_CountdownIndicatorWidget)
#include "tst_CountdownIndicatorWidget.moc"
