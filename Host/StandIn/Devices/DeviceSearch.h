#pragma once

#include <Zelkor/StandIn/CaptureDevice.h>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace Zelkor::StandIn {

/// Looks for devices on a thread of its own, until it is ended. Any thread.
class DeviceSearch : public std::enable_shared_from_this<DeviceSearch>
{
public:
    using Device = boost::intrusive_ptr<CaptureDevice>;

    struct Found
    {
        std::vector<Device> cameras;
        Device screen; ///< null where there is none
    };

    /// Called on the search's thread with all devices that are there, after the first look and whenever they change.
    /// A camera that is still there has the same object.
    using Report = std::function<void(const Found&)>;

    DeviceSearch(bool withScreen, Report report) : withScreen(withScreen), report(std::move(report)) {}

    /// Starts the thread, which holds the search.
    void Start();
    /// Asks the thread to end; does not wait. A report may be under way.
    void End();

    bool HasEnded() const;
    /// Has the thread look again.
    void Wake();
    /// Waits for `Wake` or `End`; false when the search has ended.
    bool WaitForChange();

private:
    void Run();

    const bool withScreen;
    const Report report;
    mutable std::mutex mutex; ///< guards all that follows
    std::condition_variable changed;
    bool isEnded = false;
    bool isAwake = false;
};

} // namespace Zelkor::StandIn
