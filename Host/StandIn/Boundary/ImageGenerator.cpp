#include <Zelkor/Util/ImageGenerator.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace Zelkor::StandIn {

namespace {

// Returns the opacity at `r` radii from the centre, from 0 to 1.
double Opacity(double r)
{
    return r < 1 ? 1 - r * r * r : 0;
}

} // namespace

} // namespace Zelkor::StandIn

namespace Zelkor::Util {

QImage ImageGenerator::CreateCircleWithAlphaGradientCubic(const QSize& size, const QColor& color)
{
    if (size.isEmpty())
        return QImage();
    std::array<QRgb, 256> shades; // indexed by alpha
    for (int alpha = 0; alpha < int(shades.size()); ++alpha)
        shades[alpha] = qPremultiply((color.rgb() & RGB_MASK) | QRgb(alpha) << 24);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    const int width = image.width();
    const int height = image.height();
    const double radius = std::min(width, height) / 2.0;
    const double steps = 255 * color.alphaF();
    // Computes one quarter, including the middle row and column of odd sizes, and mirrors it.
    for (int y = 0; y < (height + 1) / 2; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double dy = y + 0.5 - height / 2.0;
        for (int x = 0; x < (width + 1) / 2; ++x) {
            const double dx = x + 0.5 - width / 2.0;
            row[x] = shades[int(steps * StandIn::Opacity(std::sqrt(dx * dx + dy * dy) / radius) + 0.5)];
        }
        std::reverse_copy(row, row + width / 2, row + (width + 1) / 2);
        std::copy(row, row + width, reinterpret_cast<QRgb*>(image.scanLine(height - 1 - y)));
    }
    return image;
}

} // namespace Zelkor::Util
