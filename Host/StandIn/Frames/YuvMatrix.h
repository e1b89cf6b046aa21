#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <libyuv/convert_argb.h>

namespace Zelkor::StandIn {

/// Returns the coefficients that convert YUV samples with this matrix and range to RGB.
const libyuv::YuvConstants& YuvMatrix(ColorMatrix matrix, ColorRange range);

} // namespace Zelkor::StandIn
