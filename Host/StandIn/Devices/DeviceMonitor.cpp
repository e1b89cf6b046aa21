#include <StandIn/Devices/DeviceMonitor.h>

#include <StandIn/Capture/ThreadGroup.h>

#if defined(VX_WITH_GSTREAMER)
#include <StandIn/GStreamer/CameraMonitor.h>
#include <StandIn/GStreamer/GStreamerDevices.h>
#include <StandIn/GStreamer/GStreamerFrames.h>
#endif

#include <glog/logging.h>

#include <system_error>

namespace Zelkor::StandIn {

void DeviceMonitor::Start()
{
    const auto self = shared_from_this();
    try {
        ThreadGroup::ForDeviceMonitors().Spawn([self] { self->Run(); }, [self] { self->RequestStop(); });
    } catch (const std::system_error& error) {
        LOG(ERROR) << "No thread to look for devices: " << error.what();
        report(Found());
    }
}

void DeviceMonitor::RequestStop()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isStopping = true;
    }
    changed.notify_all();
}

bool DeviceMonitor::IsStopping() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return isStopping;
}

void DeviceMonitor::RequestSearch()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isSearchRequested = true;
    }
    changed.notify_all();
}

/// Blocks until a search is requested, or returns false when the thread must end.
bool DeviceMonitor::WaitForRequest()
{
    std::unique_lock<std::mutex> lock(mutex);
    changed.wait(lock, [this] { return isSearchRequested || isStopping; });
    isSearchRequested = false;
    return !isStopping;
}

#if defined(VX_WITH_GSTREAMER)

void DeviceMonitor::Run()
{
    Found found;
    if (IsStopping())
        return;
    if (!LoadGStreamer()) {
        report(found);
        return;
    }
    if (withScreen && !IsStopping())
        found.screen = CreateScreen();
    if (IsStopping())
        return;
    CameraMonitor monitor([this] { RequestSearch(); });
    do {
        found.cameras = monitor.Cameras();
        report(found);
    } while (WaitForRequest());
}

#else

void DeviceMonitor::Run()
{
    report(Found());
}

#endif

} // namespace Zelkor::StandIn
