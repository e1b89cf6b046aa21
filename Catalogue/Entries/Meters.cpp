#include <Catalogue/Catalogue.h>
#include <Catalogue/SamplePictures.h>
#include <UI/Widgets/PixmapWidget.h>
#include <UI/Widgets/VolumeSlider.h>

#include <QVariant>

using Zelkor::Vx::PixmapWidget;
using Zelkor::Vx::VolumeSlider;

namespace Zelkor::Catalogue {

namespace {

constexpr int METER_RADIUS = 6;
constexpr float TYPICAL_VOLUME = 0.7F;
constexpr float TYPICAL_LEVEL = 0.5F;
constexpr QSize PICTURE_SIZE(640, 480);
constexpr QSize WIDE_PLACE(240, 120);
constexpr QSize HIGH_PLACE(96, 160);
constexpr QSize SQUARE_PLACE(144, 144);

QWidget* CreateMeter(Qt::Orientation orientation, QWidget* parent)
{
    auto* slider = new VolumeSlider(orientation, parent);
    slider->setAccessibleName(EntryText::tr("Volume"));
    slider->SetVolumes(TYPICAL_VOLUME, TYPICAL_LEVEL);
    return slider;
}

QWidget* CreateUprightMeter(QWidget* parent)
{
    return CreateMeter(Qt::Vertical, parent);
}

State MeterState(const QString& name, float volume, float level)
{
    return MakeState<VolumeSlider>(name, [=](VolumeSlider& slider) { slider.SetVolumes(volume, level); });
}

void RoundMeter(VolumeSlider& slider)
{
    // The style sheet sets the property once, when it is polished.
    slider.ensurePolished();
    slider.setProperty("borderRadius", METER_RADIUS);
}

Entry VolumeSliderEntry()
{
    return {
        "VolumeSlider",
        EntryText::tr("Media"),
        EntryText::tr("A slider for a recording volume, with a meter of the input level behind its handle."),
        "VolumeSlider",
        "volume",
        CreateUprightMeter,
        {
            MeterState(EntryText::tr("Silence"), TYPICAL_VOLUME, 0),
            MeterState(EntryText::tr("Middle"), 1, TYPICAL_LEVEL),
            MeterState(EntryText::tr("Full"), 1, 1),
            MeterState(EntryText::tr("Volume lower than level"), 0.4F, 0.9F),
            MadeState(EntryText::tr("Horizontal"), [](QWidget* parent) { return CreateMeter(Qt::Horizontal, parent); }),
            MakeState<VolumeSlider>(EntryText::tr("Rounded"), RoundMeter),
            DisabledState(),
        },
        nullptr,
        1,
    };
}

QWidget* CreatePicture(QWidget* parent)
{
    auto* picture = new PixmapWidget(parent, Qt::WindowFlags());
    picture->setFixedSize(WIDE_PLACE);
    picture->SetPixmap(QPixmap::fromImage(PortraitImage(PICTURE_SIZE)));
    picture->setAccessibleName(EntryText::tr("A drawn portrait"));
    return picture;
}

State PictureState(const QString& name, PixmapWidget::MaskMode mode, PixmapWidget::MaskAnchor anchor, const QSize& size)
{
    return MakeState<PixmapWidget>(name, [=](PixmapWidget& picture) {
        picture.SetMaskMode(mode);
        picture.SetMaskAnchor(anchor);
        picture.setFixedSize(size);
    });
}

Entry PixmapWidgetEntry()
{
    using Picture = PixmapWidget;
    return {
        "PixmapWidget",
        EntryText::tr("Media"),
        EntryText::tr("Shows one picture over its whole area: stretched, cut, or cut to an ellipse."),
        "PixmapWidget",
        "thumbnail",
        CreatePicture,
        {
            MakeState<Picture>(EntryText::tr("No mask"), [](Picture&) {}),
            PictureState(EntryText::tr("Rectangle, top left"), Picture::MASK_RECTANGLE, Picture::ANCHOR_TOP_LEFT,
                         WIDE_PLACE),
            PictureState(EntryText::tr("Rectangle, bottom right"), Picture::MASK_RECTANGLE,
                         Picture::ANCHOR_BOTTOM_RIGHT, WIDE_PLACE),
            PictureState(EntryText::tr("Ellipse"), Picture::MASK_ELLIPSE, Picture::ANCHOR_CENTER, SQUARE_PLACE),
            PictureState(EntryText::tr("Ellipse upright"), Picture::MASK_ELLIPSE, Picture::ANCHOR_CENTER, HIGH_PLACE),
            MakeState<Picture>(EntryText::tr("No picture"), [](Picture& picture) { picture.SetPixmap(QPixmap()); }),
            DisabledState(),
        },
        nullptr,
        3,
    };
}

} // namespace

QVector<Entry> MeterEntries()
{
    return {InForms<VolumeSlider>(VolumeSliderEntry()), InForms<PixmapWidget>(PixmapWidgetEntry())};
}

} // namespace Zelkor::Catalogue
