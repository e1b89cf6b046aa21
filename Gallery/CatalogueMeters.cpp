#include "Artwork.h"
#include "Catalogue.h"

#include <UI/Widgets/MaskedToolTip.h>
#include <UI/Widgets/PixmapWidget.h>
#include <UI/Widgets/VolumeSlider.h>

#include <QCoreApplication>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

using Zelkor::Vx::PixmapWidget;
using Zelkor::Vx::VolumeSlider;
using Zelkor::Vx::UI::MaskedToolTip;

namespace Zelkor::Gallery {

namespace {

constexpr int METER_RADIUS = 6;
constexpr float TYPICAL_VOLUME = 0.7F;
constexpr float TYPICAL_LEVEL = 0.5F;
constexpr int HINT_DISTANCE = 12;
constexpr int HINT_TIME_MS = 5000;
constexpr QSize BUBBLE_SIZE(264, 96);
constexpr QSize PICTURE_SIZE(640, 480);
constexpr QSize WIDE_PLACE(240, 120);
constexpr QSize HIGH_PLACE(96, 160);
constexpr QSize SQUARE_PLACE(144, 144);

QString Tr(const char* text)
{
    return QCoreApplication::translate("Catalogue", text);
}

QWidget* CreateMeter(Qt::Orientation orientation, QWidget* parent)
{
    auto* slider = new VolumeSlider(orientation, parent);
    slider->setAccessibleName(Tr("Volume"));
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
    // The style sheet has its say first, and only once.
    slider.ensurePolished();
    slider.setProperty("borderRadius", METER_RADIUS);
}

Entry VolumeSliderEntry()
{
    return {
        "VolumeSlider",
        Tr("Media"),
        Tr("A slider for a recording volume, with a meter of the input level behind its handle."),
        "VolumeSlider",
        "volume",
        CreateUprightMeter,
        {
            MeterState(Tr("Silence"), TYPICAL_VOLUME, 0),
            MeterState(Tr("Middle"), 1, TYPICAL_LEVEL),
            MeterState(Tr("Full"), 1, 1),
            MeterState(Tr("Volume lower than level"), 0.4F, 0.9F),
            MadeState(Tr("Horizontal"), [](QWidget* parent) { return CreateMeter(Qt::Horizontal, parent); }),
            MakeState<VolumeSlider>(Tr("Rounded"), RoundMeter),
            DisabledState(),
        },
    };
}

/// The hint's look in its place, and the hint itself, a window, when the button is pressed.
class HintHost : public QWidget
{
public:
    explicit HintHost(QWidget* parent)
        : QWidget(parent), look(new MaskedToolTip(this)), hint(new MaskedToolTip(this)),
          button(new QPushButton(Tr("Show the hint")))
    {
        look->setWindowFlags(Qt::Widget);
        look->setAttribute(Qt::WA_TransparentForMouseEvents);
        look->SetHideOnDeactivate(false);
        hint->SetDisplayTime(HINT_TIME_MS);
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(HINT_DISTANCE);
        layout->addWidget(look, 0, Qt::AlignLeading);
        layout->addWidget(button, 0, Qt::AlignLeading);
        connect(button, &QPushButton::clicked, this, [this] {
            // The point counts from where the window stood the last time.
            hint->move(0, 0);
            // A speech bubble points down at the button.
            const bool isBubble = !hint->GetMask().isNull();
            const int y = isBubble ? -BUBBLE_SIZE.height() - HINT_DISTANCE : button->height() + HINT_DISTANCE;
            hint->Show(button->mapToGlobal(QPoint(0, y)));
        });
    }

    void SetTexts(const QString& title, const QString& text)
    {
        for (MaskedToolTip* tip : {look, hint}) {
            tip->SetTitle(title);
            tip->SetText(text);
        }
        look->Show(QPoint());
    }

    void MakeBubble()
    {
        for (MaskedToolTip* tip : {look, hint}) {
            tip->setProperty("role", QStringLiteral("bubble"));
            tip->setFixedSize(BUBBLE_SIZE);
            tip->SetMask(SpeechBubbleImage(BUBBLE_SIZE, layoutDirection()));
        }
    }

private:
    MaskedToolTip* look;
    MaskedToolTip* hint;
    QPushButton* button;
};

QWidget* CreateHintHost(QWidget* parent)
{
    auto* host = new HintHost(parent);
    host->SetTexts(Tr("Choose a source first"), Tr("A camera, the screen\nor the test picture"));
    return host;
}

QWidget* CreateBubbleHost(QWidget* parent)
{
    auto* host = new HintHost(parent);
    host->MakeBubble();
    host->SetTexts(Tr("Choose a source first"), Tr("A camera, the screen or the test picture"));
    return host;
}

Entry MaskedToolTipEntry()
{
    return {
        "MaskedToolTip",
        Tr("Windows"),
        Tr("A hint in a window of its own, in the shape of an image, that goes by itself."),
        "MaskedToolTip",
        "hint",
        CreateHintHost,
        {
            MadeState(Tr("Title and text"), CreateHintHost),
            MadeState(Tr("Text only"),
                      [](QWidget* parent) {
                          auto* host = new HintHost(parent);
                          host->SetTexts(QString(), Tr("The recording goes on"));
                          return host;
                      }),
            MadeState(Tr("Speech bubble"), CreateBubbleHost),
        },
    };
}

QWidget* CreatePicture(QWidget* parent)
{
    auto* picture = new PixmapWidget(parent, Qt::WindowFlags());
    picture->setFixedSize(WIDE_PLACE);
    picture->SetPixmap(QPixmap::fromImage(PortraitImage(PICTURE_SIZE)));
    picture->setAccessibleName(Tr("A drawn portrait"));
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
        Tr("Media"),
        Tr("Shows one picture over its whole area: stretched, cut, or cut to an ellipse."),
        "PixmapWidget",
        "thumbnail",
        CreatePicture,
        {
            MakeState<Picture>(Tr("No mask"), [](Picture&) {}),
            PictureState(Tr("Rectangle, top left"), Picture::MASK_RECTANGLE, Picture::ANCHOR_TOP_LEFT, WIDE_PLACE),
            PictureState(Tr("Rectangle, bottom right"), Picture::MASK_RECTANGLE, Picture::ANCHOR_BOTTOM_RIGHT,
                         WIDE_PLACE),
            PictureState(Tr("Ellipse"), Picture::MASK_ELLIPSE, Picture::ANCHOR_CENTER, SQUARE_PLACE),
            PictureState(Tr("Ellipse upright"), Picture::MASK_ELLIPSE, Picture::ANCHOR_CENTER, HIGH_PLACE),
            MakeState<Picture>(Tr("No picture"), [](Picture& picture) { picture.SetPixmap(QPixmap()); }),
            DisabledState(),
        },
    };
}

} // namespace

QVector<Entry> MeterEntries()
{
    return {VolumeSliderEntry(), PixmapWidgetEntry(), MaskedToolTipEntry()};
}

} // namespace Zelkor::Gallery
