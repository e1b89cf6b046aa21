#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <cstdint>
#include <vector>

namespace Zelkor::StandIn {

/// Writes the picture of a readable frame as BGRA to `target`, whose rows are `targetStride` bytes apart and which has
/// room for the whole picture, of at most 2^31 - 1 bytes. `scratch` is room for intermediate rows that the caller
/// keeps between frames. False when the frame's format cannot be converted.
bool ConvertToBgra(const VideoFrame& frame, std::uint8_t* target, int targetStride, std::vector<std::uint8_t>& scratch);

} // namespace Zelkor::StandIn
