#include <UI/Kit/Internal/TimeFormat.h>
#include <UI/Kit/ZSliderThumb.h>
#include <UI/Kit/ZTimelineSlider.h>

#include <Support/Input.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QTime>
#include <QToolTip>

#include <limits>

using namespace Zelkor::Vx::UI::Kit;

using Mapping = QMap<qint64, qint64>;
using Numbers = QVector<qint64>;
Q_DECLARE_METATYPE(Mapping)

constexpr qint64 LOWEST = std::numeric_limits<qint64>::min();
constexpr qint64 HIGHEST = std::numeric_limits<qint64>::max();
constexpr qint64 MIDNIGHT = 86400000;

class tst_ZTimelineSlider : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAndTimesCorrespond_data()
    {
        QTest::addColumn<Numbers>("span"); // start, end, left and right bound
        QTest::addColumn<bool>("isIgnored");
        QTest::addColumn<Mapping>("values"); // by time
        QTest::addColumn<Mapping>("times");  // by value
        const auto row = [](const char* name, const Numbers& span, const Mapping& values, const Mapping& times,
                            bool isIgnored = false) { QTest::newRow(name) << span << isIgnored << values << times; };
        row("plain", {0, 60000, -1, -1}, {{-9, 0}, {30000, 500}, {99999, 1000}}, {{500, 30000}, {2000, 60000}});
        row("later", {10000, 70000, -1, -1}, {{0, 167}, {30000, 500}}, {{0, 0}, {500, 30000}});
        row("bounds", {0, 60000, 20000, 50000}, {{0, 0}, {35000, 500}}, {{0, 20000}, {500, 35000}});
        row("ignored", {0, 60000, 20000, 50000}, {{0, 333}, {60000, 833}}, {{333, 20000}, {334, 20040}}, true);
        row("empty", {5000, 5000, -1, -1}, {{0, 0}, {9000, 0}}, {{0, 0}, {700, 0}});
        row("midnight", {82800000, 90000000, 82800000, -1}, {{MIDNIGHT, 500}}, {{500, MIDNIGHT}});
        row("long", {0, HIGHEST, -1, -1}, {{HIGHEST, 1000}}, {{500, HIGHEST / 2 + 1}, {1000, HIGHEST}});
        row("longest", {LOWEST, HIGHEST, -1, -1}, {{LOWEST, -499}, {HIGHEST, 500}}, {{0, 0}, {1000, HIGHEST}});
    }

    void valuesAndTimesCorrespond()
    {
        QFETCH(Numbers, span);
        QFETCH(bool, isIgnored);
        QFETCH(Mapping, values);
        QFETCH(Mapping, times);
        ZTimelineSlider slider;
        slider.setSpan(span[0], span[1]);
        slider.setBounds(span[2], span[3]);
        slider.setBoundsIgnored(isIgnored);
        for (const qint64 time : values.keys())
            QCOMPARE(slider.valueOf(time), int(values[time]));
        for (const qint64 value : times.keys())
            QCOMPARE(slider.timeAt(int(value)), times[value]);
    }

    void changesKeepTheTimeWithinTheBounds()
    {
        auto* slider = new ZTimelineSlider;
        const auto state = [&] {
            const ZSliderThumb& thumb = *slider->defaultThumb();
            return Numbers{thumb.lowerLimit(), thumb.upperLimit(), thumb.value(), slider->value(), slider->time()};
        };
        QSignalSpy times(slider, &ZTimelineSlider::timeChanged);
        slider->setEndTime(60000);
        slider->setTime(30000);
        slider->setTime(30010); // same value
        slider->setBoundsIgnored(true);
        slider->setBounds(20000, 40000);
        slider->setBoundsIgnored(false);
        slider->setBoundsIgnored(true);
        QCOMPARE(state(), Numbers({333, 667, 500, 500, 30000}));
        slider->setEndTime(120000); // the old value exceeds the new limit
        QCOMPARE(state(), Numbers({167, 333, 250, 250, 30000}));

        // The bound passes the time and is removed.
        slider->setBoundsIgnored(false);
        slider->setRightBound(-5);
        slider->setTime(0);
        slider->setLeftBound(40000);
        slider->setLeftBound(-1);
        slider->resetBounds();
        QCOMPARE(state(), Numbers({0, 1000, 333, 333, 39960}));
        slider->setRange(0, 120000);
        slider->setTime(119999);
        QCOMPARE(state(), Numbers({0, 120000, 119999, 119999, 119999}));
        slider->resetTime();
        QCOMPARE(state(), Numbers({0, 120000, 0, 0, 0}));
        slider->setRange(7, 7);
        slider->removeThumb("default");
        slider->setBounds(50000, 60000);
        QCOMPARE(times, QList<QVariantList>({{30000}, {20000}, {40000}, {39960}, {119999}, {50000}}));
        // A slot may delete the slider.
        connect(slider, &ZTimelineSlider::timeChanged, slider, [slider] { delete slider; });
        slider->setBounds(55000, -1);
    }

    void toolTipAndAccessibilityShowTimes()
    {
        QCOMPARE(ChooseTimeFormat({"", "yyyy", "'hh'", "h:mm AP"}, QTime(0, 0)), QString("h:mm AP"));
        QCOMPARE(TimeText({1, 2, 3, 450}, {"yyyy"}, QLocale::c()), QString("01:02:03"));
        ZTimelineSlider slider;
        slider.setSpan(0, MIDNIGHT);
        slider.setBounds(0, MIDNIGHT + 7200000);
        slider.setLocale(QLocale::c());
        slider.setLayoutDirection(Qt::RightToLeft);
        slider.resize(212, 30);
        slider.show();
        const auto tipAt = [&](int x) {
            Support::MoveMouse(&slider, {x, 25}, Qt::NoButton);
            return QToolTip::text();
        };
        QCOMPARE(tipAt(106), QString("13:00:00"));
        QCOMPARE(tipAt(211), QString("02:00:00"));
        // A dragged thumb grabs the mouse.
        ZSliderThumb* thumb = slider.defaultThumb();
        QTest::mousePress(thumb, Qt::LeftButton, {}, {7, 7});
        Support::MoveMouse(thumb, thumb->mapFromParent(QPoint(56, 7)));
        QCOMPARE(QToolTip::text(), QString("06:30:00"));
        QTest::mouseRelease(thumb, Qt::LeftButton, {}, {7, 7});
        slider.setBounds(20000, 23000);
        slider.setDisplayFormatList({"", "hh:mm", "m:ss", "ss"});
        QCOMPARE(tipAt(105), QString("0:01"));
        QCOMPARE(tipAt(2), QString("00:00"));

        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&slider);
        QAccessibleValueInterface* value = accessible->valueInterface();
        value->setCurrentValue(22000);
        QCOMPARE(accessible->text(QAccessible::Value), QString("0:22"));
        QCOMPARE(value->maximumValue(), QVariant(23000));
        slider.setSingleStep(INT_MAX);
        slider.setRange(1, INT_MAX);
        QCOMPARE(value->minimumStepSize(), QVariant(3000)); // limited by the maximum
    }
};

VX_TEST_MAIN(tst_ZTimelineSlider)
#include "tst_ZTimelineSlider.moc"
