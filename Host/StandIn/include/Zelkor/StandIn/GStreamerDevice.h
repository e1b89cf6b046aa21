#pragma once

#include <Zelkor/StandIn/CaptureDevice.h>

#include <string>

namespace Zelkor::StandIn {

/// Creates a device that captures from part of a GStreamer pipeline, for example "videotestsrc is-live=true
/// pattern=ball". `description` must end in one unlinked source pad. A mode requests raw video in its format, size and
/// rate from that pad. A mode with a detail requests the caps in the detail instead; the result is converted if
/// necessary.
///
/// Logs an error and returns null when `description` is invalid or names a missing element. Always returns null in a
/// build without GStreamer. The first call in a process loads GStreamer, which can take a second. Any thread may call.
VX_HOST_EXPORT boost::intrusive_ptr<CaptureDevice> CreateGStreamerDevice(const std::string& id, const std::string& name,
                                                                         const std::string& description,
                                                                         CaptureDevice::Modes modes);

} // namespace Zelkor::StandIn
