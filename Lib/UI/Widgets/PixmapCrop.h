#pragma once

#include <UI/Widgets/PixmapWidget.h>

#include <QImage>

/// Which part of a picture a pixmap widget shows, and how it is drawn. Internal.
namespace Zelkor::Vx::PixmapCrop {

/// The largest part of a picture that has the shape of `area`, at the anchor. Empty for an empty area.
QRect CutRect(const QSize& picture, const QSize& area, PixmapWidget::MaskAnchor anchor);

/// The part `cut` of the picture at exactly `size`, smoothly scaled, and with `ellipse` transparent outside the
/// inscribed ellipse.
QImage Render(const QImage& picture, const QRect& cut, const QSize& size, bool ellipse);

} // namespace Zelkor::Vx::PixmapCrop
