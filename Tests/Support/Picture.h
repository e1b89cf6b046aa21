#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

#include <functional>

namespace Support {

/// The colour in the middle of a widget's pixel, in a picture of the widget at any device pixel ratio.
QColor ColorAt(const QImage& picture, const QPoint& pixel);

/// The widget with its children, without a window background, on a backdrop of one colour.
QImage Render(QWidget& widget, const QColor& backdrop, qreal pixelRatio = 1);

/// The smallest rectangle around all pixels of which `isInk` says so.
QRect InkOf(const QImage& picture, const std::function<bool(const QColor&)>& isInk);

/// Of all pixels and channels, up to 255; more for pictures of different sizes.
int LargestDifference(const QImage& a, const QImage& b);

} // namespace Support
