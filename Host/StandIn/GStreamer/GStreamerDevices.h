#pragma once

#include <StandIn/GStreamer/GStreamerPtr.h>

#include <Zelkor/StandIn/CaptureDevice.h>

namespace Zelkor::StandIn {

/// Creates the capture device for a camera.
boost::intrusive_ptr<CaptureDevice> CreateCamera(GstDevice* device, const std::string& id, const std::string& name,
                                                 CaptureDevice::Modes modes);

/// Creates the device that captures the X11 screen. Returns null when there is no X display or no element that captures
/// it. Opens the display.
boost::intrusive_ptr<CaptureDevice> CreateScreen();

} // namespace Zelkor::StandIn
