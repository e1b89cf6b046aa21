#pragma once

#include <StandIn/GStreamer/GStreamerPtr.h>

#include <Zelkor/StandIn/CaptureDevice.h>

namespace Zelkor::StandIn {

/// The camera that `device` is.
boost::intrusive_ptr<CaptureDevice> CreateCamera(GstDevice* device, const std::string& id, const std::string& name,
                                                 CaptureDevice::Modes modes);

/// The whole X11 screen; null when there is no X display or no element that captures it. Opens the display.
boost::intrusive_ptr<CaptureDevice> CreateScreen();

} // namespace Zelkor::StandIn
