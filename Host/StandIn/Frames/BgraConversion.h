#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <cstdint>
#include <vector>

namespace Zelkor::StandIn {

/// Converts a readable frame to BGRA. `target` must have room for the picture, at most 2^31 - 1 bytes, with rows that
/// are `targetStride` bytes apart. `scratch` holds intermediate rows; reuse it to avoid allocations. Returns false when
/// the frame's format cannot be converted.
bool ConvertToBgra(const VideoFrame& frame, std::uint8_t* target, int targetStride, std::vector<std::uint8_t>& scratch);

} // namespace Zelkor::StandIn
