#include <StandIn/Capture/ObserverCalls.h>

#include <StandIn/Capture/CaptureSession.h>

namespace Zelkor::StandIn {

ObserverCalls::Turn ObserverCalls::TakePlace()
{
    const std::lock_guard<std::mutex> lock(mutex);
    row.insert(++lastTurn);
    return lastTurn;
}

void ObserverCalls::Leave(Turn turn)
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (turn == callingTurn)
            caller = std::thread::id();
        row.erase(turn);
    }
    moved.notify_all();
}

void ObserverCalls::WaitForTurn(Turn turn)
{
    std::unique_lock<std::mutex> lock(mutex);
    moved.wait(lock, [&] { return *row.begin() == turn; });
    callingTurn = turn;
    caller = std::this_thread::get_id();
}

void ObserverCalls::WaitForSilence()
{
    std::unique_lock<std::mutex> lock(mutex);
    if (caller == std::this_thread::get_id())
        return;
    const Turn last = lastTurn;
    moved.wait(lock, [&] { return row.empty() || *row.begin() > last; });
}

boost::intrusive_ptr<CaptureSession> ObserverCalls::LockSession() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return session ? session->TryReference() : nullptr;
}

void ObserverCalls::ForgetSession()
{
    const std::lock_guard<std::mutex> lock(mutex);
    session = nullptr;
}

} // namespace Zelkor::StandIn
