#pragma once

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <set>
#include <thread>

namespace Zelkor::StandIn {

class CaptureSession;

/// Puts the observer calls of one session into a row: one at a time, and all of one start before those of the next.
/// Also the only way from the engine's threads back to the session. Any thread.
class ObserverCalls
{
public:
    using Turn = std::uint64_t;

    explicit ObserverCalls(CaptureSession& session) : session(&session) {}

    /// A new place at the end of the row; each has to be left some time.
    Turn TakePlace();
    void Leave(Turn turn);
    /// Waits until those before have left. From then on until `Leave` this thread is the one that calls.
    void WaitForTurn(Turn turn);

    /// Waits until all have left that are in the row now; returns at once on the thread that calls.
    void WaitForSilence();

    /// The session, held for the length of a call; null when its last reference is gone.
    boost::intrusive_ptr<CaptureSession> LockSession() const;
    /// The session dies: nobody gets at it any more.
    void ForgetSession();

private:
    mutable std::mutex mutex; ///< guards all that follows
    std::condition_variable moved;
    std::set<Turn> row;
    Turn lastTurn = 0;
    Turn callingTurn = 0;
    std::thread::id caller; ///< the thread that calls, or none
    CaptureSession* session;
};

} // namespace Zelkor::StandIn
