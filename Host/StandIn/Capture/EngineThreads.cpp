#include <StandIn/Capture/EngineThreads.h>

#include <Zelkor/StandIn/CaptureEngine.h>

#include <glog/logging.h>

#include <exception>
#include <thread>
#include <utility>

namespace Zelkor::StandIn {

namespace {

constexpr std::chrono::seconds EXIT_PATIENCE(2);

/// The two groups of threads; they are never destroyed.
struct Groups
{
    EngineThreads& sessions = *new EngineThreads;
    EngineThreads& searches = *new EngineThreads;

#if !defined(_WIN32)
    // Has the threads leave before the statics go that they may use. Windows ends them itself before it gets here.
    ~Groups()
    {
        sessions.Abandon();
        searches.Abandon();
    }
#endif
};

Groups& AllGroups()
{
    static Groups groups;
    return groups;
}

} // namespace

EngineThreads& EngineThreads::OfSessions()
{
    return AllGroups().sessions;
}

EngineThreads& EngineThreads::OfSearches()
{
    return AllGroups().searches;
}

void EngineThreads::Spawn(std::function<void()> body, std::function<void()> abandon)
{
    std::unique_lock<std::mutex> lock(mutex);
    const auto entry = abandons.insert(abandons.end(), std::move(abandon));
    lock.unlock();
    try {
        std::thread([this, body = std::move(body), entry]() mutable { Run(std::move(body), entry); }).detach();
    } catch (...) {
        lock.lock();
        abandons.erase(entry);
        throw;
    }
}

void EngineThreads::Run(std::function<void()> body, Abandons::iterator entry)
{
    try {
        body();
    } catch (const std::exception& error) {
        LOG(ERROR) << "A thread of the capture engine broke down: " << error.what();
    } catch (...) {
        LOG(ERROR) << "A thread of the capture engine broke down";
    }
    // What the thread worked on goes before the thread counts as gone.
    body = nullptr;
    std::function<void()> abandon;
    std::unique_lock<std::mutex> lock(mutex);
    abandon.swap(*entry);
    lock.unlock();
    abandon = nullptr;
    lock.lock();
    abandons.erase(entry);
    if (abandons.empty())
        idle.notify_all();
}

bool EngineThreads::WaitForIdle(std::chrono::milliseconds timeout)
{
    std::unique_lock<std::mutex> lock(mutex);
    return idle.wait_for(lock, timeout, [this] { return abandons.empty(); });
}

void EngineThreads::Abandon()
{
    std::unique_lock<std::mutex> lock(mutex);
    const Abandons running = abandons;
    lock.unlock();
    for (const auto& abandon : running) {
        if (abandon)
            abandon();
    }
    WaitForIdle(EXIT_PATIENCE);
}

bool WaitForEngineIdle(std::chrono::milliseconds timeout)
{
    return EngineThreads::OfSessions().WaitForIdle(timeout);
}

} // namespace Zelkor::StandIn
