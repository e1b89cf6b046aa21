#pragma once

#include <QImage>
#include <QPointF>

class QPainter;

/// Computes and draws the inner shadow of `ZGraphicsShadowEffect`. Internal.
namespace Zelkor::InnerShadow {

struct Input
{
    QSize size;     ///< of the widget, in logical pixels
    QPointF offset; ///< widths of the vertical and horizontal bands, in logical pixels
    double level = 0;
    QRgb color = 0; ///< alpha is ignored
};

/// Returns the opacity, 0 to 255, of a pixel in the top left quadrant. The other quadrants mirror it; a middle row or
/// column belongs to none.
int AlphaAt(const Input& input, int x, int y);

/// Returns the shadow as one image of the widget's size.
QImage WholeImage(const Input& input);

/// Draws the shadow as four bands, in time proportional to their area. Draws the same pixels as `WholeImage` at the
/// origin, if the device pixel ratio is an integer.
void DrawBands(QPainter& painter, const Input& input);

} // namespace Zelkor::InnerShadow
