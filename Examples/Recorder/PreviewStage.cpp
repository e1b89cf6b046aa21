#include "PreviewStage.h"

#include <Examples/Support/Artwork.h>
#include <UI/Widgets/VideoPreviewWidget.h>
#include <UI/Widgets/ZGraphicsShadowEffect.h>

#include <QEvent>

using Zelkor::Vx::UI::VideoPreviewWidget;

namespace Zelkor::Recorder {

using namespace Examples;

namespace {

constexpr QSize SHAPE(16, 9);
constexpr QSize PREFERRED_SIZE(896, 504);
constexpr QSize SMALLEST_SIZE(160, 90);

// A slight inner shadow.
constexpr qreal SHADOW_WIDTH = 10;
constexpr qreal SHADOW_STRENGTH = 0.35;

QRect LargestOfShape(const QRect& area)
{
    const QSize size = SHAPE.scaled(area.size(), Qt::KeepAspectRatio);
    // The shadow omits the middle row and column of odd sizes.
    QRect rect(0, 0, size.width() & ~1, size.height() & ~1);
    rect.moveCenter(area.center());
    return rect;
}

} // namespace

PreviewStage::PreviewStage(QWidget* parent) : QFrame(parent), preview(new VideoPreviewWidget(this))
{
    setObjectName("previewStage");
    auto* shadow = new ZGraphicsShadowEffect(preview);
    shadow->SetOffset(SHADOW_WIDTH);
    shadow->SetBrightnessLevel(SHADOW_STRENGTH);
    preview->setGraphicsEffect(shadow);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PreviewStage::SetIdleText(const QString& text)
{
    idleText = text;
    RefreshDefaultImage();
}

void PreviewStage::SetLive(bool isLive)
{
    live = isLive;
    RefreshDefaultImage();
}

QSize PreviewStage::sizeHint() const
{
    return PREFERRED_SIZE + QSize(2 * frameWidth(), 2 * frameWidth());
}

QSize PreviewStage::minimumSizeHint() const
{
    return SMALLEST_SIZE + QSize(2 * frameWidth(), 2 * frameWidth());
}

void PreviewStage::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    const QRect place = LargestOfShape(contentsRect());
    preview->SetPreviewWidth(place.width());
    preview->SetPreviewHeight(place.height());
    preview->move(place.topLeft());
    RefreshDefaultImage();
}

void PreviewStage::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        RefreshDefaultImage();
}

void PreviewStage::RefreshDefaultImage()
{
    if (!live)
        preview->SetDefaultImage(NoPictureImage(preview->size(), palette().color(QPalette::Text), idleText));
}

} // namespace Zelkor::Recorder
