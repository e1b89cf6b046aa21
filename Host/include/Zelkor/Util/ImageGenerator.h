#pragma once

#include <Zelkor/HostExport.h>

#include <QColor>
#include <QImage>

namespace Zelkor::Util {

/// Pictures that are computed rather than drawn.
struct VX_HOST_EXPORT ImageGenerator
{
    /// A disc inscribed in an image of exactly `size`, in `color`, whose opacity falls from the centre to the rim by a
    /// cubic: with r the distance from the centre in units of the radius, alpha is that of `color` times 1 - r³.
    /// Premultiplied; null for an empty size.
    static QImage CreateCircleWithAlphaGradientCubic(const QSize& size, const QColor& color);
};

} // namespace Zelkor::Util
