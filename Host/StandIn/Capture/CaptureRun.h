#pragma once

#include <StandIn/Capture/FrameSlot.h>
#include <StandIn/Capture/ObserverCalls.h>

#include <Zelkor/StandIn/CaptureDevice.h>
#include <Zelkor/Time/IChronometer.h>

#include <condition_variable>
#include <optional>

namespace Zelkor::StandIn {

/// One run of a session, from a start to its end.
///
/// It has two threads. One opens the device, gets the frames and closes the device, which may take any time. The other
/// tells the observer and never waits for the first, so that an end is told at once, however long the device takes.
/// The run keeps the observer until the last call is over, and the session during a call alone.
class CaptureRun final : public SourceChannel, public std::enable_shared_from_this<CaptureRun>
{
public:
    /// A null `source` is a device that cannot be opened.
    CaptureRun(std::unique_ptr<CaptureSource> source, std::shared_ptr<const Time::IChronometer> chronometer,
               std::shared_ptr<Acquis::ICaptureSessionObserver> observer, std::shared_ptr<ObserverCalls> calls);
    ~CaptureRun();

    void Start();

    /// Ends the run, unless it has ended already. An observer that knows of it is told that it stopped, any other is
    /// told nothing. Does not wait.
    void Stop();
    bool HasEnded() const { return IsEnding(); }

    void Deliver(const boost::intrusive_ptr<VideoFrame>& frame) override;
    void Fail(CaptureError newError) override;
    bool IsEnding() const override;
    bool WaitForEnd(std::chrono::steady_clock::time_point deadline) override;

private:
    enum class End { None, Stopped, ByItself, Abandoned };

    void RunSource();
    void TellObserver();
    bool TellStarted();
    void TellEnd(bool startedWasTold);
    void Finish(End how, CaptureError newError);
    void Abandon();

    std::unique_ptr<CaptureSource> source; ///< for the source's thread alone
    const std::shared_ptr<const Time::IChronometer> chronometer;
    const std::shared_ptr<ObserverCalls> calls;
    const ObserverCalls::Turn turn;
    const std::shared_ptr<FrameSlot> slot = std::make_shared<FrameSlot>();
    std::shared_ptr<Acquis::ICaptureSessionObserver> observer; ///< for the telling thread alone

    mutable std::mutex mutex; ///< guards all that follows
    std::condition_variable changed;
    std::optional<std::int64_t> startTime; ///< of the first frame
    End end = End::None;
    CaptureError error = CaptureError::None;
};

} // namespace Zelkor::StandIn
