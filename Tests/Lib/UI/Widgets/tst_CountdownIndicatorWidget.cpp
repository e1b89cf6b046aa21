#include <UI/Widgets/CountdownIndicatorWidget.h>

#include <Support/EventSpy.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QLabel>

#include <list>

using Zelkor::Vx::CountdownIndicatorWidget;

namespace {

const QStringList NUMBERS{"number1Label", "number2Label", "number3Label"};
const QStringList CAPTIONS{"caption1Label", "caption2Label", "caption3Label"};

QString Shown(const CountdownIndicatorWidget& countdown)
{
    QStringList texts;
    for (const QString& name : NUMBERS + CAPTIONS)
        texts << countdown.findChild<QLabel*>(name)->text();
    return texts.join(' ');
}

} // namespace

class tst_CountdownIndicatorWidget : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void unitsSuitTheValue()
    {
        CountdownIndicatorWidget countdown(nullptr);
        QCOMPARE(Shown(countdown), QString("00 00 00 hr min sec"));
        for (const auto& [seconds, shown] :
             std::vector<std::pair<quint64, QString>>{{356400, "99 00 00 hr min sec"},
                                                      {356401, "04 03 00 day hr min"},
                                                      {8553600, "99 00 00 day hr min"},
                                                      {8553601, "03 09 00 mon day hr"},
                                                      {31536000, "12 05 00 mon day hr"},
                                                      {31536001, "01 00 00 yr mon day"},
                                                      {3153600000, "10 00 00 yr mon day"}}) {
            countdown.SetSeconds(seconds);
            QCOMPARE(countdown.GetSeconds(), seconds);
            QCOMPARE(Shown(countdown), shown);
        }
        countdown.setAccessibleName("Starts in");
        const QString told = QAccessible::queryAccessibleInterface(&countdown)->text(QAccessible::Name);
        QCOMPARE(told, QString("Starts in 100 yr 0 mon 0 day"));
    }

    void onlyWhatChangesIsPainted()
    {
        CountdownIndicatorWidget countdown(nullptr);
        countdown.setLayoutDirection(Qt::RightToLeft);
        countdown.setStyleSheet("QLabel { min-width: 70px } #numbersSeparator { min-width: 20px; max-width: 20px } "
                                "#captionsFrame QLabel { min-width: 90px }");
        countdown.resize(400, 100);
        QStringList painted;
        std::list<Support::EventSpy> watches;
        for (auto* label : countdown.findChildren<QLabel*>()) {
            watches.emplace_back(label, [&painted, label](QEvent::Type type, auto) {
                if (type == QEvent::Paint)
                    painted << label->objectName();
            });
        }
        countdown.show();
        QTRY_COMPARE(painted.size(), 8);
        for (const auto& [seconds, changed] : std::vector<std::pair<quint64, QStringList>>{
                 {0, {}}, {9, {NUMBERS[2]}}, {69, {NUMBERS[1]}}, {356469, NUMBERS + CAPTIONS}, {356470, {}}}) {
            painted.clear();
            countdown.SetSeconds(seconds);
            QCoreApplication::processEvents();
            QCOMPARE(painted, changed);
        }
        // The largest unit is at the left all the same, and each caption is under its number.
        for (int i = 0; i < 6; ++i) {
            const auto* label = countdown.findChild<QLabel*>((NUMBERS + CAPTIONS)[i]);
            QCOMPARE(label->mapTo(&countdown, label->rect().center()).x(), 109 + 90 * (i % 3));
        }
    }
};

VX_TEST_MAIN(tst_CountdownIndicatorWidget)
#include "tst_CountdownIndicatorWidget.moc"
