#include <StandIn/Capture/CaptureRun.h>

#include <StandIn/Capture/CaptureSession.h>
#include <StandIn/Capture/EngineThreads.h>

#include <glog/logging.h>

#include <exception>
#include <system_error>
#include <utility>

namespace Zelkor::StandIn {

namespace {

CaptureError RunGuarded(CaptureSource& source, SourceChannel& channel)
{
    try {
        return source.Run(channel);
    } catch (const std::exception& error) {
        LOG(ERROR) << "A capture source broke down: " << error.what();
    } catch (...) {
        LOG(ERROR) << "A capture source broke down";
    }
    return CaptureError::Failed;
}

} // namespace

CaptureRun::CaptureRun(std::unique_ptr<CaptureSource> source, std::shared_ptr<const Time::IChronometer> chronometer,
                       std::shared_ptr<Acquis::ICaptureSessionObserver> observer, std::shared_ptr<ObserverCalls> calls)
    : source(std::move(source)), chronometer(std::move(chronometer)), calls(std::move(calls)),
      turn(this->calls->TakePlace()), observer(std::move(observer))
{}

CaptureRun::~CaptureRun() = default;

void CaptureRun::Start()
{
    const auto self = shared_from_this();
    auto& threads = EngineThreads::OfSessions();
    const auto abandon = [self] { self->Abandon(); };
    try {
        threads.Spawn([self] { self->TellObserver(); }, abandon);
    } catch (const std::system_error& failure) {
        LOG(ERROR) << "No thread for a capture session: " << failure.what();
        Finish(End::Abandoned, CaptureError::Failed);
        calls->Leave(turn);
        return;
    }
    try {
        threads.Spawn([self] { self->RunSource(); }, abandon);
    } catch (const std::system_error& failure) {
        LOG(ERROR) << "No thread for a capture device: " << failure.what();
        Fail(CaptureError::Failed);
    }
}

void CaptureRun::Stop()
{
    Finish(End::Stopped, CaptureError::None);
}

void CaptureRun::Deliver(const boost::intrusive_ptr<VideoFrame>& frame)
{
    if (!frame)
        return;
    const auto stamped = chronometer ? frame->WithTime(chronometer->Now()) : frame;
    slot->Put(stamped);
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (startTime || end != End::None)
            return;
        startTime = stamped->GetTime();
    }
    changed.notify_all();
}

void CaptureRun::Fail(CaptureError newError)
{
    Finish(End::ByItself, newError);
}

bool CaptureRun::IsEnding() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return end != End::None;
}

bool CaptureRun::WaitForEnd(std::chrono::steady_clock::time_point deadline)
{
    std::unique_lock<std::mutex> lock(mutex);
    return changed.wait_until(lock, deadline, [this] { return end != End::None; });
}

/// The source's thread.
void CaptureRun::RunSource()
{
    CaptureError result = CaptureError::CannotOpen;
    if (source && !IsEnding())
        result = RunGuarded(*source, *this);
    Finish(End::ByItself, result);
    source = nullptr;
}

/// The telling thread.
void CaptureRun::TellObserver()
{
    std::unique_lock<std::mutex> lock(mutex);
    const auto isOver = [this] { return end == End::Stopped || end == End::Abandoned; };
    changed.wait(lock, [this] { return startTime || end != End::None; });
    if (!isOver()) {
        lock.unlock();
        calls->WaitForTurn(turn);
        TellEnd(TellStarted());
    } else {
        lock.unlock();
    }
    // Before the place is left: whoever waits for silence may then destroy what the observer refers to.
    observer = nullptr;
    calls->Leave(turn);
}

/// False when there is nothing to tell.
bool CaptureRun::TellStarted()
{
    std::unique_lock<std::mutex> lock(mutex);
    if (!startTime || end == End::Stopped || end == End::Abandoned)
        return false;
    const std::int64_t time = *startTime;
    lock.unlock();
    const auto session = calls->LockSession();
    if (!session)
        return false;
    observer->handleStarted(*session, time, CreateFrameProvider(slot));
    return true;
}

/// Waits for the end of the run.
void CaptureRun::TellEnd(bool startedWasTold)
{
    std::unique_lock<std::mutex> lock(mutex);
    changed.wait(lock, [this] { return end != End::None; });
    if (end == End::Abandoned)
        return;
    auto told = error;
    // Somebody waits for a run that came to its end before its first picture.
    if (end == End::ByItself && told == CaptureError::None && !startTime)
        told = CaptureError::CannotOpen;
    lock.unlock();
    if (told == CaptureError::None) {
        if (startedWasTold)
            observer->handleStopped();
    } else if (const auto session = calls->LockSession()) {
        observer->handleError(*session, static_cast<int>(told));
    }
}

/// The first end counts.
void CaptureRun::Finish(End how, CaptureError newError)
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (end != End::None)
            return;
        end = how;
        error = newError;
    }
    slot->Close();
    changed.notify_all();
}

/// The process exits: the threads shall leave and call nobody.
void CaptureRun::Abandon()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        end = End::Abandoned;
    }
    slot->Close();
    changed.notify_all();
}

} // namespace Zelkor::StandIn
