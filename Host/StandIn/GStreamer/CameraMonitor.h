#pragma once

#include <StandIn/GStreamer/GStreamerPtr.h>

#include <Zelkor/StandIn/CaptureDevice.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace Zelkor::StandIn {

/// Knows the cameras that are plugged in. One thread; making one and destroying it may take its time.
class CameraMonitor
{
public:
    using Camera = boost::intrusive_ptr<CaptureDevice>;

    /// `changed` is called on a thread of GStreamer's whenever cameras come or go.
    explicit CameraMonitor(std::function<void()> changed);
    ~CameraMonitor();
    CameraMonitor(const CameraMonitor&) = delete;
    CameraMonitor& operator=(const CameraMonitor&) = delete;

    /// The cameras that are there now. One that was there before is the same object.
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
        Camera camera; ///< null for what is no camera
        bool wasLookedAt;
    };
    std::vector<Known> known;
};

} // namespace Zelkor::StandIn
