#include <StandIn/Capture/ThreadGroup.h>

#include <Zelkor/StandIn/CaptureEngine.h>

#include <glog/logging.h>

#include <exception>
#include <thread>
#include <utility>

namespace Zelkor::StandIn {

namespace {

constexpr std::chrono::seconds EXIT_TIMEOUT(2);

/// The two groups, which are never destroyed.
struct Groups
{
    ThreadGroup& sessions = *new ThreadGroup;
    ThreadGroup& deviceMonitors = *new ThreadGroup;

#if !defined(_WIN32)
    // Ends the threads before the statics are destroyed that they use. Windows has ended them by now.
    ~Groups()
    {
        sessions.CancelAll();
        deviceMonitors.CancelAll();
    }
#endif
};

Groups& AllGroups()
{
    static Groups groups;
    return groups;
}

} // namespace

ThreadGroup& ThreadGroup::ForSessions()
{
    return AllGroups().sessions;
}

ThreadGroup& ThreadGroup::ForDeviceMonitors()
{
    return AllGroups().deviceMonitors;
}

void ThreadGroup::Spawn(std::function<void()> body, std::function<void()> cancel)
{
    // Locked until the thread is detached, which Run() waits for: MinGW's threads reuse the record of a thread that
    // ended before it was detached while that thread still writes to it, and then lose the next thread.
    const std::lock_guard<std::mutex> lock(mutex);
    const auto entry = cancels.insert(cancels.end(), std::move(cancel));
    try {
        std::thread([this, body = std::move(body), entry]() mutable { Run(std::move(body), entry); }).detach();
    } catch (...) {
        cancels.erase(entry);
        throw;
    }
}

void ThreadGroup::Run(std::function<void()> body, Cancels::iterator entry)
{
    std::unique_lock<std::mutex> lock(mutex);
    lock.unlock();
    try {
        body();
    } catch (const std::exception& error) {
        LOG(ERROR) << "A thread of the capture engine broke down: " << error.what();
    } catch (...) {
        LOG(ERROR) << "A thread of the capture engine broke down";
    }
    // The captures of both functions are destroyed before the thread leaves the group.
    body = nullptr;
    std::function<void()> cancel;
    lock.lock();
    cancel.swap(*entry);
    lock.unlock();
    cancel = nullptr;
    lock.lock();
    cancels.erase(entry);
    if (cancels.empty())
        idle.notify_all();
}

bool ThreadGroup::WaitForIdle(std::chrono::milliseconds timeout)
{
    std::unique_lock<std::mutex> lock(mutex);
    return idle.wait_for(lock, timeout, [this] { return cancels.empty(); });
}

void ThreadGroup::CancelAll()
{
    std::unique_lock<std::mutex> lock(mutex);
    const Cancels running = cancels;
    lock.unlock();
    for (const auto& cancel : running) {
        if (cancel)
            cancel();
    }
    WaitForIdle(EXIT_TIMEOUT);
}

bool WaitForEngineIdle(std::chrono::milliseconds timeout)
{
    return ThreadGroup::ForSessions().WaitForIdle(timeout);
}

} // namespace Zelkor::StandIn
