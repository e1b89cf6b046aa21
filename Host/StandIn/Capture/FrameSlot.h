#pragma once

#include <Zelkor/Acquis/IFrameProvider.h>
#include <Zelkor/StandIn/VideoFrame.h>

#include <memory>
#include <mutex>

namespace Zelkor::StandIn {

/// The newest frame of one run, for any number of readers. Any thread.
class FrameSlot
{
public:
    using Frame = boost::intrusive_ptr<VideoFrame>;

    void Put(Frame frame);
    /// The newest frame; null before the first one and after `Close`.
    Frame Get() const;
    /// Drops the frame and takes no more.
    void Close();

private:
    mutable std::mutex mutex;
    Frame newest;
    bool closed = false;
};

/// A provider of the slot's frames. It keeps the slot, but neither the session nor the device.
boost::intrusive_ptr<Acquis::IFrameProvider> CreateFrameProvider(const std::shared_ptr<const FrameSlot>& slot);

} // namespace Zelkor::StandIn
