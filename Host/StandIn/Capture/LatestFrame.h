#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <mutex>

namespace Zelkor::StandIn {

/// Holds the newest frame of a running capture for any number of readers. Any thread may call.
class LatestFrame
{
public:
    using Frame = boost::intrusive_ptr<VideoFrame>;

    void Set(Frame frame)
    {
        // The previous frame is released after the lock.
        const std::lock_guard<std::mutex> lock(mutex);
        if (!isClosed)
            newest.swap(frame);
    }

    /// Returns null before the first frame and after `Close`.
    Frame Get() const
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return newest;
    }

    /// Releases the frame and ignores later ones.
    void Close()
    {
        Frame last;
        const std::lock_guard<std::mutex> lock(mutex);
        isClosed = true;
        last.swap(newest);
    }

private:
    mutable std::mutex mutex; ///< guards all members below
    Frame newest;
    bool isClosed = false;
};

} // namespace Zelkor::StandIn
