#pragma once

#include <StandIn/GStreamer/GStreamerPtr.h>

#include <Zelkor/StandIn/CaptureDevice.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace Zelkor::StandIn {

/// Lists the connected cameras and watches for changes. Not thread-safe. The constructor and the destructor may block.
class CameraMonitor
{
public:
    using Camera = boost::intrusive_ptr<CaptureDevice>;

    /// `changed` is called on a thread of GStreamer when a camera is plugged in or unplugged.
    explicit CameraMonitor(std::function<void()> changed);
    ~CameraMonitor();
    CameraMonitor(const CameraMonitor&) = delete;
    CameraMonitor& operator=(const CameraMonitor&) = delete;

    /// Returns the connected cameras. A camera that was returned before is the same object.
    std::vector<Camera> Cameras();

private:
    static GstBusSyncReply HandleMessage(GstBus* bus, GstMessage* message, gpointer watch);

    Camera CameraOf(GstDevice* device, std::set<std::string>& identities) const;

    const std::function<void()> changed;
    const GStreamerPtr<GstDeviceMonitor> monitor;
    bool isRunning = false;

    struct Known
    {
        GStreamerPtr<GstDevice> device;
        Camera camera; ///< null when the device is not a camera
        bool wasLookedAt;
    };
    std::vector<Known> known;
};

} // namespace Zelkor::StandIn
