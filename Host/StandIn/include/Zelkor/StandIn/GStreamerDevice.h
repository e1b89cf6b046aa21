#pragma once

#include <Zelkor/StandIn/CaptureDevice.h>

#include <string>

namespace Zelkor::StandIn {

/// A device that captures what a piece of a GStreamer pipeline gives, "videotestsrc is-live=true pattern=ball" for
/// instance. The piece ends in one unlinked pad, from which a mode takes raw video of its format, size and rate; a
/// mode with a detail takes the caps that the detail spells instead, and has them converted where need be.
///
/// Null, with a log line, when the description is wrong or names an element that is not there; always null in a build
/// without GStreamer. The first call of a process loads GStreamer, which may take a second. Any thread may call.
VX_HOST_EXPORT boost::intrusive_ptr<CaptureDevice> CreateGStreamerDevice(const std::string& id, const std::string& name,
                                                                         const std::string& description,
                                                                         CaptureDevice::Modes modes);

} // namespace Zelkor::StandIn
