#include <StandIn/Capture/ObserverQueue.h>

namespace Zelkor::StandIn {

ObserverQueue::Ticket ObserverQueue::Enter()
{
    const std::lock_guard<std::mutex> lock(mutex);
    queue.insert(++lastTicket);
    return lastTicket;
}

void ObserverQueue::Leave(Ticket ticket)
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (ticket == callingTicket)
            caller = std::thread::id();
        queue.erase(ticket);
    }
    changed.notify_all();
}

void ObserverQueue::WaitForTurn(Ticket ticket)
{
    std::unique_lock<std::mutex> lock(mutex);
    changed.wait(lock, [&] { return *queue.begin() == ticket; });
    callingTicket = ticket;
    caller = std::this_thread::get_id();
}

void ObserverQueue::WaitUntilIdle()
{
    std::unique_lock<std::mutex> lock(mutex);
    if (caller == std::this_thread::get_id())
        return;
    const Ticket last = lastTicket;
    changed.wait(lock, [&] { return queue.empty() || *queue.begin() > last; });
}

} // namespace Zelkor::StandIn
