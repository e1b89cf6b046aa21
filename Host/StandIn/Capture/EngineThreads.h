#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <list>
#include <mutex>

namespace Zelkor::StandIn {

/// The engine's threads. Nobody joins them, because a device may take any time to close; they are counted instead, so
/// that one can wait for them.
///
/// The objects live for ever: a thread that winds down while the process exits still finds its own here.
class EngineThreads
{
public:
    /// The threads of capture sessions.
    static EngineThreads& OfSessions();
    /// The threads that look for devices.
    static EngineThreads& OfSearches();

    /// Runs `body` on a new thread. `abandon` is called when the process exits before `body` has returned: it asks
    /// the thread to end soon and to call nobody any more. Throws `std::system_error` when there are no threads left.
    void Spawn(std::function<void()> body, std::function<void()> abandon);

    /// Waits until no thread is left; false when the time ran out before. Any thread.
    bool WaitForIdle(std::chrono::milliseconds timeout);

    /// Asks all threads to end, and waits a moment for them.
    void Abandon();

private:
    using Abandons = std::list<std::function<void()>>;

    void Run(std::function<void()> body, Abandons::iterator entry);

    std::mutex mutex; ///< guards all that follows
    std::condition_variable idle;
    Abandons abandons; ///< one for each thread that runs
};

} // namespace Zelkor::StandIn
