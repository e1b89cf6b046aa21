#include <StandIn/Devices/DeviceSearch.h>

#include <StandIn/Capture/EngineThreads.h>

#if defined(VX_WITH_GSTREAMER)
#include <StandIn/GStreamer/CameraWatch.h>
#include <StandIn/GStreamer/GStreamerDevices.h>
#include <StandIn/GStreamer/GStreamerFrames.h>
#endif

#include <glog/logging.h>

#include <system_error>

namespace Zelkor::StandIn {

void DeviceSearch::Start()
{
    const auto self = shared_from_this();
    try {
        EngineThreads::OfSearches().Spawn([self] { self->Run(); }, [self] { self->End(); });
    } catch (const std::system_error& error) {
        LOG(ERROR) << "No thread to look for devices: " << error.what();
        report(Found());
    }
}

void DeviceSearch::End()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isEnded = true;
    }
    changed.notify_all();
}

bool DeviceSearch::HasEnded() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return isEnded;
}

void DeviceSearch::Wake()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isAwake = true;
    }
    changed.notify_all();
}

bool DeviceSearch::WaitForChange()
{
    std::unique_lock<std::mutex> lock(mutex);
    changed.wait(lock, [this] { return isAwake || isEnded; });
    isAwake = false;
    return !isEnded;
}

#if defined(VX_WITH_GSTREAMER)

void DeviceSearch::Run()
{
    Found found;
    if (HasEnded())
        return;
    if (!LoadGStreamer()) {
        report(found);
        return;
    }
    if (withScreen && !HasEnded())
        found.screen = CreateScreen();
    if (HasEnded())
        return;
    CameraWatch watch([this] { Wake(); });
    do {
        found.cameras = watch.Cameras();
        report(found);
    } while (WaitForChange());
}

#else

void DeviceSearch::Run()
{
    report(Found());
}

#endif

} // namespace Zelkor::StandIn
