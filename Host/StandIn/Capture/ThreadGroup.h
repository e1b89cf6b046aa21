#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <list>
#include <mutex>

namespace Zelkor::StandIn {

/// A group of detached threads that can be waited for. The threads are not joined, because a device may block for any
/// time while it closes.
///
/// The groups are never destroyed: a thread that ends while the process exits still needs its own.
class ThreadGroup
{
public:
    /// The threads of capture sessions and audio level sources.
    static ThreadGroup& ForSessions();
    /// The threads of device monitors.
    static ThreadGroup& ForDeviceMonitors();

    /// Runs `body` on a new thread. If the process exits before `body` has returned, `cancel` is called: it makes
    /// `body` return soon and without calling back. Throws `std::system_error` when no thread can be created.
    void Spawn(std::function<void()> body, std::function<void()> cancel);

    /// Blocks until no thread is left. Returns false on timeout. Any thread may call.
    bool WaitForIdle(std::chrono::milliseconds timeout);

    /// Cancels all threads and waits a moment for them.
    void CancelAll();

private:
    using Cancels = std::list<std::function<void()>>;

    void Run(std::function<void()> body, Cancels::iterator entry);

    std::mutex mutex; ///< guards all members below
    std::condition_variable idle;
    Cancels cancels; ///< one for each running thread
};

} // namespace Zelkor::StandIn
