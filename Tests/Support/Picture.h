#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

#include <functional>

namespace Support {

/// Returns the colour at the centre of a logical pixel, for a picture of any device pixel ratio.
QColor ColorAt(const QImage& picture, const QPoint& pixel);

/// Renders a widget and its children on a plain backdrop, without the window background.
QImage Render(QWidget& widget, const QColor& backdrop, qreal pixelRatio = 1);

/// Returns the bounding rectangle of all pixels for which `isInk` returns true.
QRect InkOf(const QImage& picture, const std::function<bool(const QColor&)>& isInk);

/// Returns the largest difference of a channel, 0 to 255, or 256 for pictures of different sizes.
int LargestDifference(const QImage& a, const QImage& b);

} // namespace Support
