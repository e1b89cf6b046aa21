#pragma once

#include <StandIn/GStreamer/GStreamerPtr.h>

#include <Zelkor/StandIn/CaptureDevice.h>

namespace Zelkor::StandIn {

/// Returns the modes of a camera with `caps`, sorted by size (largest first), frame rate (highest first) and conversion
/// cost (lowest first). Ranges of sizes and rates are replaced by the usual values within them. Unsupported formats are
/// omitted, and so is JPEG unless `readsJpeg`.
CaptureDevice::Modes CameraModes(const GstCaps* caps, bool readsJpeg);

} // namespace Zelkor::StandIn
