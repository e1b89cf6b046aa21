#pragma once

#include <Zelkor/StandIn/CaptureDevice.h>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace Zelkor::StandIn {

/// Finds the devices that need a search and watches for changes, on its own thread. Any thread may call.
class DeviceMonitor : public std::enable_shared_from_this<DeviceMonitor>
{
public:
    using Device = boost::intrusive_ptr<CaptureDevice>;

    struct Found
    {
        std::vector<Device> cameras; ///< a camera that was reported before is the same object
        Device screen;               ///< null when there is none
    };

    /// Called on the monitor's thread after the first search and after each change.
    using Report = std::function<void(const Found&)>;

    DeviceMonitor(bool withScreen, Report report) : withScreen(withScreen), report(std::move(report)) {}

    /// Starts the thread, which keeps the monitor alive.
    void Start();
    /// Makes the thread end. Does not block: a report may still be running.
    void RequestStop();

private:
    void Run();
    bool IsStopping() const;
    void RequestSearch();
    bool WaitForRequest();

    const bool withScreen;
    const Report report;
    mutable std::mutex mutex; ///< guards all members below
    std::condition_variable changed;
    bool isStopping = false;
    bool isSearchRequested = false;
};

} // namespace Zelkor::StandIn
