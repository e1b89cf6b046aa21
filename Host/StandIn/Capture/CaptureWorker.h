#pragma once

#include <StandIn/Capture/LatestFrame.h>
#include <StandIn/Capture/ObserverQueue.h>
#include <StandIn/Capture/SessionControlBlock.h>

#include <Zelkor/StandIn/CaptureDevice.h>
#include <Zelkor/Time/IChronometer.h>

#include <condition_variable>
#include <optional>

namespace Zelkor::StandIn {

/// Captures from one start of a session to its end, on two threads.
///
/// The source thread opens the device, receives frames and closes the device, each of which may block. The observer
/// thread calls the observer and never waits for the source thread, so a stop is reported at once, however long the
/// device takes to close. A worker holds the observer until its last call has returned, and the session only during a
/// call.
class CaptureWorker final : public SourceChannel, public std::enable_shared_from_this<CaptureWorker>
{
public:
    /// A null `source` stands for a device that cannot be opened.
    CaptureWorker(std::unique_ptr<CaptureSource> source, std::shared_ptr<const Time::IChronometer> chronometer,
                  std::shared_ptr<Acquis::ICaptureSessionObserver> observer, std::shared_ptr<ObserverQueue> queue,
                  std::shared_ptr<SessionControlBlock> session);
    ~CaptureWorker();

    void Start();

    /// Ends the capture unless it has ended. The observer is called only if it has been notified of the start. Does not
    /// block.
    void Stop();
    bool HasEnded() const { return IsEnding(); }

    void Deliver(const boost::intrusive_ptr<VideoFrame>& frame) override;
    void Fail(CaptureError newError) override;
    bool IsEnding() const override;
    bool WaitForEnd(std::chrono::steady_clock::time_point deadline) override;

private:
    enum class End {
        None,
        Stopped,   ///< by the session
        Finished,  ///< by the source, with or without an error
        Cancelled, ///< by the exit of the process
    };

    void RunSource();
    void RunObserver();
    bool NotifyStarted();
    void NotifyEnd(bool startWasNotified);
    void Finish(End how, CaptureError newError);
    void Cancel();

    std::unique_ptr<CaptureSource> source; ///< used on the source thread only
    const std::shared_ptr<const Time::IChronometer> chronometer;
    const std::shared_ptr<ObserverQueue> queue;
    const ObserverQueue::Ticket ticket;
    const std::shared_ptr<SessionControlBlock> session;
    const std::shared_ptr<LatestFrame> latest = std::make_shared<LatestFrame>();
    std::shared_ptr<Acquis::ICaptureSessionObserver> observer; ///< used on the observer thread only

    mutable std::mutex mutex; ///< guards all members below
    std::condition_variable changed;
    std::optional<std::int64_t> startTime; ///< of the first frame, in nanoseconds
    End end = End::None;
    CaptureError error = CaptureError::None;
};

} // namespace Zelkor::StandIn
