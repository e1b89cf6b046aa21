#pragma once

#include <StandIn/GStreamer/GStreamerPtr.h>

#include <Zelkor/StandIn/CaptureDevice.h>

namespace Zelkor::StandIn {

/// The modes of a camera that offers `caps`: the largest picture first, among equals the fastest, then the one that
/// costs least to read. Sizes and rates that are given as ranges are replaced by the usual ones within. Formats that
/// nothing here reads are left out, JPEG unless `readsJpeg`.
CaptureDevice::Modes CameraModes(const GstCaps* caps, bool readsJpeg);

} // namespace Zelkor::StandIn
