#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <libyuv/convert_argb.h>

namespace Zelkor::StandIn {

/// The coefficients that turn YUV samples of this matrix and range into RGB.
const libyuv::YuvConstants& YuvMatrix(ColorMatrix matrix, ColorRange range);

} // namespace Zelkor::StandIn
