#pragma once

#include <Zelkor/HostExport.h>

#include <QColor>
#include <QImage>

namespace Zelkor::Util {

/// Generates images.
struct VX_HOST_EXPORT ImageGenerator
{
    /// Returns an image of `size` pixels with the largest disc that fits its centre, in `color`. At the distance r from
    /// the centre, in radii, alpha is that of `color` times 1 - r³. The format is premultiplied. Null for an empty
    /// size.
    static QImage CreateCircleWithAlphaGradientCubic(const QSize& size, const QColor& color);
};

} // namespace Zelkor::Util
