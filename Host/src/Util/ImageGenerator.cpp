#include <Zelkor/Util/ImageGenerator.h>

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace Zelkor::Util {

namespace {

// The share of the colour's opacity at `r` radii from the centre.
double Opacity(double r)
{
    return r < 1 ? 1 - r * r * r : 0;
}

} // namespace

QImage ImageGenerator::CreateCircleWithAlphaGradientCubic(const QSize& size, const QColor& color)
{
    if (size.isEmpty())
        return QImage();
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    const double radius = std::min(size.width(), size.height()) / 2.0;
    const QPointF centre(size.width() / 2.0, size.height() / 2.0);
    const QRgb rgb = color.rgb();
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const double r = std::hypot(x + 0.5 - centre.x(), y + 0.5 - centre.y()) / radius;
            const int alpha = qRound(255 * color.alphaF() * Opacity(r));
            row[x] = qPremultiply(qRgba(qRed(rgb), qGreen(rgb), qBlue(rgb), alpha));
        }
    }
    return image;
}

} // namespace Zelkor::Util
