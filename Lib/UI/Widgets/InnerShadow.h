#pragma once

#include <QImage>
#include <QPointF>

class QPainter;

/// The rim of the shadow effect. Internal.
namespace Zelkor::InnerShadow {

struct Input
{
    QSize size; ///< of the widget, in logical pixels
    QPointF offset;
    double level = 0;
    QRgb color = 0; ///< its alpha does not count
};

/// The opacity, 0 to 255, at a pixel of the top left quarter; the other quarters mirror it. A middle row or column
/// belongs to no quarter.
int AlphaAt(const Input& input, int x, int y);

/// The rim as one image of the widget's size.
QImage WholeImage(const Input& input);

/// Draws the rim band by band, so that the cost grows with the rim and not with the widget. The same as drawing the
/// whole image at the origin, where a logical pixel is a whole number of device pixels.
void DrawBands(QPainter& painter, const Input& input);

} // namespace Zelkor::InnerShadow
