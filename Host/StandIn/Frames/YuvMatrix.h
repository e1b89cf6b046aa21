#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <libyuv/convert_argb.h>

namespace Zelkor::Proc {

/// The coefficients that turn YUV samples of this matrix and range into RGB.
const libyuv::YuvConstants& YuvMatrix(StandIn::ColorMatrix matrix, StandIn::ColorRange range);

} // namespace Zelkor::Proc
