#include <Catalogue/Catalogue.h>
#include <UI/Kit/ZSliderThumb.h>
#include <UI/Kit/ZTimeEdit.h>
#include <UI/Kit/ZTimelineSlider.h>

#include <QTime>
#include <QVariant>

namespace Zelkor::Catalogue {

namespace {

constexpr int LENGTH = 320;
constexpr int FIELD_WIDTH = 160;
constexpr qint64 SECOND = 1000;
constexpr qint64 MINUTE = 60 * SECOND;

const QStringList FORMATS{"mm:ss", "hh:mm:ss", "hh:mm:ss.zzz"};

QWidget* CreateTimeline(QWidget* parent)
{
    auto* slider = new ZTimelineSlider(parent);
    slider->setOrientation(Qt::Horizontal);
    slider->setAccessibleName(EntryText::tr("Position"));
    slider->defaultThumb()->setName(EntryText::tr("Position"));
    slider->setMinimumWidth(LENGTH);
    slider->setDisplayFormatList(FORMATS);
    slider->setEndTime(3 * MINUTE);
    slider->setTime(MINUTE);
    return slider;
}

// Brackets that mark the kept range and confine the position; the timeline shows the whole recording.
void ShowBounds(ZTimelineSlider& slider)
{
    slider.setProperty("role", QStringLiteral("trim"));
    slider.defaultThumb()->setZOrder(1);
    slider.setBoundsIgnored(true);
    slider.setBounds(40 * SECOND, 130 * SECOND);
    ZSliderThumb* left = slider.addThumb(QStringLiteral("left"));
    ZSliderThumb* right = slider.addThumb(QStringLiteral("right"));
    left->setName(EntryText::tr("Start", "thumb"));
    right->setName(EntryText::tr("End", "thumb"));
    left->setValue(slider.valueOf(slider.leftBound()));
    right->setValue(slider.valueOf(slider.rightBound()));
    const auto follow = [&slider, left, right] {
        left->setUpperLimit(right->value());
        right->setLowerLimit(left->value());
        slider.setSegments({{left->value(), right->value(), true}});
        const qint64 length = slider.endTime() - slider.startTime();
        slider.setBounds(length * left->value() / slider.maximum(), length * right->value() / slider.maximum());
    };
    for (ZSliderThumb* thumb : {left, right}) {
        QObject::connect(thumb, &ZSliderThumb::valueChanged, &slider, follow);
        QObject::connect(thumb, &ZSliderThumb::stepped, thumb,
                         [thumb](int factor) { thumb->setValue(thumb->value() + factor / 12); });
    }
    follow();
}

Entry TimelineEntry()
{
    using Slider = ZTimelineSlider;
    return {
        "ZTimelineSlider",
        EntryText::tr("Kit"),
        EntryText::tr("A slider for a time within a span, which bounds can narrow; it tells the time under the mouse."),
        "ZTimelineSlider",
        "timeline",
        CreateTimeline,
        {
            MakeState<Slider>(EntryText::tr("One minute of three"), [](Slider&) {}),
            MakeState<Slider>(EntryText::tr("Narrowed by bounds"),
                              [](Slider& slider) { slider.setBounds(40 * SECOND, 130 * SECOND); }),
            MakeState<Slider>(EntryText::tr("Bounds with thumbs"), ShowBounds),
            MakeState<Slider>(EntryText::tr("At its bound"),
                              [](Slider& slider) {
                                  ShowBounds(slider);
                                  slider.setTime(0);
                              }),
            DisabledState(),
        },
        MakeBare<ZTimelineSlider>,
        2,
    };
}

QWidget* CreateTimeEdit(QWidget* parent)
{
    auto* edit = new ZTimeEdit(parent);
    edit->setAccessibleName(EntryText::tr("Time"));
    edit->setDisplayFormat(FORMATS[1]);
    edit->setTime(QTime(0, 12, 34));
    edit->setFixedWidth(FIELD_WIDTH);
    return edit;
}

void ChooseFormat(ZTimeEdit& edit)
{
    edit.setDisplayFormatList(FORMATS);
}

QWidget* CreateNarrowTimeEdit(QWidget* parent)
{
    auto* edit = new ZTimeEdit(parent);
    edit->setAccessibleName(EntryText::tr("Time"));
    edit->setDisplayFormatList(FORMATS);
    edit->setTime(QTime(0, 12, 34));
    edit->setStyleTag(QStringLiteral("shrinkWidth"));
    return edit;
}

Entry TimeEditEntry()
{
    return {
        "ZTimeEdit",
        EntryText::tr("Kit"),
        EntryText::tr(
            "A field for a time whose digits are overwritten in place, in the shortest format that is exact."),
        "ZTimeEdit",
        "time",
        CreateTimeEdit,
        {
            MakeState<ZTimeEdit>(EntryText::tr("One format"), [](ZTimeEdit&) {}),
            MakeState<ZTimeEdit>(EntryText::tr("The format that fits: minutes"), ChooseFormat),
            MakeState<ZTimeEdit>(EntryText::tr("The format that fits: milliseconds"),
                                 [](ZTimeEdit& edit) {
                                     ChooseFormat(edit);
                                     edit.setMillisecondStep(40);
                                     edit.setTime(QTime(0, 12, 34, 560));
                                 }),
            MakeState<ZTimeEdit>(EntryText::tr("Always the longest format"),
                                 [](ZTimeEdit& edit) {
                                     edit.setProperty("forceMaxtimeFormat", true);
                                     ChooseFormat(edit);
                                 }),
            MadeState(EntryText::tr("As wide as its text"), CreateNarrowTimeEdit),
            MakeState<ZTimeEdit>(EntryText::tr("From 00:01:00 to 00:30:00"),
                                 [](ZTimeEdit& edit) { edit.setTimeRange(QTime(0, 1), QTime(0, 30)); }),
            MakeState<ZTimeEdit>(EntryText::tr("Twelve hours"),
                                 [](ZTimeEdit& edit) { edit.setDisplayFormat(QStringLiteral("h:mm AP")); }),
            MakeState<ZTimeEdit>(EntryText::tr("Read-only"), [](ZTimeEdit& edit) { edit.setReadOnly(true); }),
            DisabledState(),
        },
        MakeBare<ZTimeEdit>,
    };
}

} // namespace

QVector<Entry> TimeEntries()
{
    return {KitInForms<ZTimelineSlider>(TimelineEntry(), {{"orientation", "Horizontal"}}),
            KitInForms<ZTimeEdit>(TimeEditEntry())};
}

} // namespace Zelkor::Catalogue
