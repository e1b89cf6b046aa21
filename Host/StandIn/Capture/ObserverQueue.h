#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <set>
#include <thread>

namespace Zelkor::StandIn {

/// Serializes the observer calls of one session: one call at a time, and all calls of one start before those of the
/// next. Any thread may call.
class ObserverQueue
{
public:
    using Ticket = std::uint64_t;

    /// Appends a ticket to the queue. Each ticket must be returned by `Leave`.
    Ticket Enter();
    void Leave(Ticket ticket);

    /// Blocks until all earlier tickets have left. The calling thread may then call the observer until it leaves.
    void WaitForTurn(Ticket ticket);

    /// Blocks until every ticket that is in the queue now has left. Returns at once within an observer call.
    void WaitUntilIdle();

private:
    std::mutex mutex; ///< guards all members below
    std::condition_variable changed;
    std::set<Ticket> queue;
    Ticket lastTicket = 0;
    Ticket callingTicket = 0;
    std::thread::id caller; ///< the thread that may call the observer, if any
};

} // namespace Zelkor::StandIn
