#pragma once

#include <QImage>

/// Computes which part of a picture a pixmap widget shows, and renders it. Internal.
namespace Zelkor::Vx::PixmapCrop {

/// Returns the largest part of a picture with the aspect ratio of `area`, at the given corner or in the centre.
/// Empty for an empty area.
QRect CropRect(const QSize& picture, const QSize& area, Qt::Alignment anchor);

/// Returns the part `crop` of the picture, smoothly scaled to `size`. With `ellipse`, pixels outside the inscribed
/// ellipse are transparent.
QImage Render(const QImage& picture, const QRect& crop, const QSize& size, bool ellipse);

} // namespace Zelkor::Vx::PixmapCrop
