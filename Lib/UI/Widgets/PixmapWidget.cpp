#include <UI/Widgets/PixmapWidget.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Widgets/PixmapCrop.h>

#include <QPainter>

namespace Zelkor::Vx {

namespace {

// In device pixels. Limits the memory of a widget that is larger than any screen.
constexpr QSize MAXIMUM_SIZE(8192, 8192);

Qt::Alignment AlignmentOf(PixmapWidget::MaskAnchor anchor)
{
    switch (anchor) {
    case PixmapWidget::ANCHOR_CENTER:
        return Qt::AlignCenter;
    case PixmapWidget::ANCHOR_TOP_RIGHT:
        return Qt::AlignTop | Qt::AlignRight;
    case PixmapWidget::ANCHOR_BOTTOM_LEFT:
        return Qt::AlignBottom | Qt::AlignLeft;
    case PixmapWidget::ANCHOR_BOTTOM_RIGHT:
        return Qt::AlignBottom | Qt::AlignRight;
    case PixmapWidget::ANCHOR_TOP_LEFT:
    default:
        return Qt::AlignTop | Qt::AlignLeft;
    }
}

} // namespace

struct PixmapWidget::Impl
{
    MaskMode maskMode = MASK_NONE;
    MaskAnchor maskAnchor = ANCHOR_TOP_LEFT;
    QPixmap source;
    QImage picture; ///< the source as an image, with a device pixel ratio of 1
    QPixmap scaled; ///< cached for painting, in device pixels; null until the next paint
};

PixmapWidget::PixmapWidget(QWidget* parent, Qt::WindowFlags f) : QFrame(parent, f), impl(std::make_unique<Impl>())
{
    using AccessiblePicture = UI::Common::AccessibleAs<QAccessible::Graphic>;
    UI::Common::AccessibleFactory<PixmapWidget, AccessiblePicture>::Install();
}

PixmapWidget::~PixmapWidget() = default;

PixmapWidget::MaskMode PixmapWidget::GetMaskMode() const
{
    return impl->maskMode;
}

void PixmapWidget::SetMaskMode(MaskMode mode)
{
    impl->maskMode = mode;
    Rebuild();
}

PixmapWidget::MaskAnchor PixmapWidget::GetMaskAnchor() const
{
    return impl->maskAnchor;
}

void PixmapWidget::SetMaskAnchor(MaskAnchor anchor)
{
    impl->maskAnchor = anchor;
    Rebuild();
}

QPixmap PixmapWidget::GetPixmap() const
{
    return impl->source;
}

void PixmapWidget::SetPixmap(const QPixmap& pixmap)
{
    impl->source = pixmap;
    impl->source.setDevicePixelRatio(1);
    impl->picture = impl->source.toImage();
    Rebuild();
}

void PixmapWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Rebuild();
}

void PixmapWidget::Rebuild()
{
    impl->scaled = QPixmap();
    update();
}

void PixmapWidget::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    if (impl->picture.isNull())
        return;
    QPainter painter(this);
    // The ratio of the paint device, which may be an image instead of the window.
    const QSize target = (QSizeF(size()) * painter.device()->devicePixelRatioF()).toSize().boundedTo(MAXIMUM_SIZE);
    if (impl->scaled.size() != target) {
        const bool isMasked = impl->maskMode != MASK_NONE;
        const QRect crop = isMasked ? PixmapCrop::CropRect(impl->picture.size(), size(), AlignmentOf(impl->maskAnchor))
                                    : impl->picture.rect();
        impl->scaled =
            QPixmap::fromImage(PixmapCrop::Render(impl->picture, crop, target, impl->maskMode == MASK_ELLIPSE));
    }
    if (impl->scaled.isNull())
        return;
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect(), impl->scaled, impl->scaled.rect());
}

} // namespace Zelkor::Vx
