#pragma once

#include <Zelkor/Acquis/ICaptureSession.h>

#include <atomic>

namespace Zelkor::StandIn {

/// The reference count of a capture session. It outlives the session, so that another thread can take a reference if
/// and only if one exists. Any thread may call.
class SessionControlBlock
{
public:
    explicit SessionControlBlock(Acquis::ICaptureSession& session) : session(session) {}

    void AddRef() noexcept { count.fetch_add(1, std::memory_order_relaxed); }
    /// Returns true when this was the last reference.
    bool Release() noexcept { return count.fetch_sub(1, std::memory_order_acq_rel) == 1; }
    int GetRefCount() const noexcept { return count.load(std::memory_order_relaxed); }

    /// Returns a new reference to the session, or null when the last one has been released.
    boost::intrusive_ptr<Acquis::ICaptureSession> Lock() noexcept
    {
        int seen = count.load(std::memory_order_relaxed);
        while (seen > 0) {
            if (count.compare_exchange_weak(seen, seen + 1, std::memory_order_acq_rel))
                return boost::intrusive_ptr<Acquis::ICaptureSession>(&session, false);
        }
        return nullptr;
    }

private:
    Acquis::ICaptureSession& session;
    std::atomic<int> count{0};
};

} // namespace Zelkor::StandIn
