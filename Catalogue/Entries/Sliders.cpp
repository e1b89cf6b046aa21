#include <Catalogue/Catalogue.h>
#include <UI/Kit/ZSlider.h>
#include <UI/Kit/ZSliderThumb.h>

#include <QVariant>

namespace Zelkor::Catalogue {

namespace {

constexpr int LENGTH = 320;
constexpr int STEP = 5;
constexpr int STEP_UNITS = 120;

// Converts key steps to values. The values of a vertical slider increase downwards.
void Step(ZSlider& slider, ZSliderThumb* thumb)
{
    QObject::connect(thumb, &ZSliderThumb::stepped, thumb, [&slider, thumb](int factor) {
        const int step = slider.orientation() == Qt::Vertical ? -STEP : STEP;
        thumb->setValue(thumb->value() + step * factor / STEP_UNITS);
    });
}

ZSliderThumb* AddThumb(ZSlider& slider, const QString& name, int value)
{
    ZSliderThumb* thumb = slider.addThumb(name);
    Step(slider, thumb);
    thumb->setValue(value);
    return thumb;
}

ZSlider* CreateSlider(Qt::Orientation orientation, QWidget* parent)
{
    auto* slider = new ZSlider(parent);
    slider->setOrientation(orientation);
    slider->setAccessibleName(EntryText::tr("Position"));
    slider->defaultThumb()->setName(EntryText::tr("Position"));
    Step(*slider, slider->defaultThumb());
    slider->setValue(40);
    return slider;
}

QWidget* CreateHorizontalSlider(QWidget* parent)
{
    ZSlider* slider = CreateSlider(Qt::Horizontal, parent);
    slider->setMinimumWidth(LENGTH);
    return slider;
}

// Two brackets that cannot pass each other, and the range between them.
void Trim(ZSlider& slider)
{
    slider.setProperty("role", QStringLiteral("trim"));
    ZSliderThumb* left = AddThumb(slider, QStringLiteral("left"), 20);
    ZSliderThumb* right = AddThumb(slider, QStringLiteral("right"), 70);
    left->setName(EntryText::tr("Start", "thumb"));
    right->setName(EntryText::tr("End", "thumb"));
    const auto follow = [&slider, left, right] {
        left->setUpperLimit(right->value());
        right->setLowerLimit(left->value());
        slider.setSegments({{left->value(), right->value(), true}});
    };
    QObject::connect(left, &ZSliderThumb::valueChanged, &slider, follow);
    QObject::connect(right, &ZSliderThumb::valueChanged, &slider, follow);
    follow();
}

void AddMarks(ZSlider& slider)
{
    slider.setProperty("role", QStringLiteral("trim"));
    for (const int value : {15, 60, 80})
        AddThumb(slider, EntryText::tr("Mark at %1").arg(value), value)->setStyleTag(QStringLiteral("mark"));
    slider.setSelectedThumb(slider.thumb(EntryText::tr("Mark at %1").arg(60)));
}

void AddChapters(ZSlider& slider)
{
    slider.setProperty("role", QStringLiteral("trim"));
    slider.setSegments({{0, 30, false}, {30, 55, true}, {70, 100, false}});
}

QWidget* CreateUprightChapters(QWidget* parent)
{
    ZSlider* slider = CreateSlider(Qt::Vertical, parent);
    AddChapters(*slider);
    return slider;
}

void LimitPosition(ZSlider& slider)
{
    Trim(slider);
    ZSliderThumb* position = slider.defaultThumb();
    const auto limit = [&slider, position] {
        position->setLowerLimit(slider.thumb(QStringLiteral("left"))->value());
        position->setUpperLimit(slider.thumb(QStringLiteral("right"))->value());
    };
    for (const char* name : {"left", "right"})
        QObject::connect(slider.thumb(QLatin1String(name)), &ZSliderThumb::valueChanged, position, limit);
    limit();
}

void Snap(ZSlider& slider)
{
    AddMarks(slider);
    slider.setSnapping(true);
    slider.setSnapDistance(50);
}

Entry SliderEntry()
{
    return {
        "ZSlider",
        EntryText::tr("Kit"),
        EntryText::tr("A slider with any number of thumbs and highlighted stretches, for trimming and timelines."),
        "ZSlider",
        "trim",
        CreateHorizontalSlider,
        {
            MakeState<ZSlider>(EntryText::tr("One thumb"), [](ZSlider&) {}),
            MakeState<ZSlider>(EntryText::tr("Trimming"), Trim),
            MakeState<ZSlider>(EntryText::tr("Trimming, position limited"), LimitPosition),
            MakeState<ZSlider>(EntryText::tr("Segments"), AddChapters),
            MakeState<ZSlider>(EntryText::tr("Marks, one selected"), AddMarks),
            MakeState<ZSlider>(EntryText::tr("Marks that snap to the position"), Snap),
            MadeState(EntryText::tr("Upright"), [](QWidget* parent) { return CreateSlider(Qt::Vertical, parent); }),
            MadeState(EntryText::tr("Upright, segments"), CreateUprightChapters),
            MakeState<ZSlider>(EntryText::tr("Disabled"),
                               [](ZSlider& slider) {
                                   Trim(slider);
                                   slider.setEnabled(false);
                               }),
        },
        MakeBare<ZSlider>,
        3,
    };
}

} // namespace

QVector<Entry> SliderEntries()
{
    return {KitInForms<ZSlider>(SliderEntry(), {{"orientation", "Horizontal"}})};
}

} // namespace Zelkor::Catalogue
