#include <StandIn/Capture/CaptureWorker.h>

#include <StandIn/Capture/FrameProvider.h>
#include <StandIn/Capture/ThreadGroup.h>

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

CaptureWorker::CaptureWorker(std::unique_ptr<CaptureSource> source,
                             std::shared_ptr<const Time::IChronometer> chronometer,
                             std::shared_ptr<Acquis::ICaptureSessionObserver> observer,
                             std::shared_ptr<ObserverQueue> queue, std::shared_ptr<SessionControlBlock> session)
    : source(std::move(source)), chronometer(std::move(chronometer)), queue(std::move(queue)),
      ticket(this->queue->Enter()), session(std::move(session)), observer(std::move(observer))
{}

CaptureWorker::~CaptureWorker() = default;

void CaptureWorker::Start()
{
    const auto self = shared_from_this();
    auto& threads = ThreadGroup::ForSessions();
    const auto cancel = [self] { self->Cancel(); };
    try {
        threads.Spawn([self] { self->RunObserver(); }, cancel);
    } catch (const std::system_error& failure) {
        LOG(ERROR) << "No thread for a capture session: " << failure.what();
        Finish(End::Cancelled, CaptureError::Failed);
        queue->Leave(ticket);
        return;
    }
    try {
        threads.Spawn([self] { self->RunSource(); }, cancel);
    } catch (const std::system_error& failure) {
        LOG(ERROR) << "No thread for a capture device: " << failure.what();
        Fail(CaptureError::Failed);
    }
}

void CaptureWorker::Stop()
{
    Finish(End::Stopped, CaptureError::None);
}

void CaptureWorker::Deliver(const boost::intrusive_ptr<VideoFrame>& frame)
{
    if (!frame)
        return;
    const auto stamped = chronometer ? frame->WithTime(chronometer->Now()) : frame;
    latest->Set(stamped);
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (startTime || end != End::None)
            return;
        startTime = stamped->GetTime();
    }
    changed.notify_all();
}

void CaptureWorker::Fail(CaptureError newError)
{
    Finish(End::Finished, newError);
}

bool CaptureWorker::IsEnding() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return end != End::None;
}

bool CaptureWorker::WaitForEnd(std::chrono::steady_clock::time_point deadline)
{
    std::unique_lock<std::mutex> lock(mutex);
    return changed.wait_until(lock, deadline, [this] { return end != End::None; });
}

/// The source thread.
void CaptureWorker::RunSource()
{
    CaptureError result = CaptureError::CannotOpen;
    if (source && !IsEnding())
        result = RunGuarded(*source, *this);
    Finish(End::Finished, result);
    source = nullptr;
}

/// The observer thread.
void CaptureWorker::RunObserver()
{
    std::unique_lock<std::mutex> lock(mutex);
    changed.wait(lock, [this] { return startTime || end != End::None; });
    const bool isOver = end == End::Stopped || end == End::Cancelled;
    lock.unlock();
    if (!isOver) {
        queue->WaitForTurn(ticket);
        NotifyEnd(NotifyStarted());
    }
    // Before the queue is left: a caller that waits for the queue may then destroy what the observer refers to.
    observer = nullptr;
    queue->Leave(ticket);
}

/// Returns false when the observer was not called.
bool CaptureWorker::NotifyStarted()
{
    std::unique_lock<std::mutex> lock(mutex);
    if (!startTime || end == End::Stopped || end == End::Cancelled)
        return false;
    const std::int64_t time = *startTime;
    lock.unlock();
    const auto locked = session->Lock();
    if (!locked)
        return false;
    observer->handleStarted(*locked, time, CreateFrameProvider(latest));
    return true;
}

/// Blocks until the capture ends.
void CaptureWorker::NotifyEnd(bool startWasNotified)
{
    std::unique_lock<std::mutex> lock(mutex);
    changed.wait(lock, [this] { return end != End::None; });
    if (end == End::Cancelled)
        return;
    auto code = error;
    // The observer waits for a start that does not happen.
    if (end == End::Finished && code == CaptureError::None && !startTime)
        code = CaptureError::CannotOpen;
    lock.unlock();
    if (code == CaptureError::None) {
        if (startWasNotified)
            observer->handleStopped();
    } else if (const auto locked = session->Lock()) {
        observer->handleError(*locked, static_cast<int>(code));
    }
}

/// Ignored when the capture has ended.
void CaptureWorker::Finish(End how, CaptureError newError)
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (end != End::None)
            return;
        end = how;
        error = newError;
    }
    latest->Close();
    changed.notify_all();
}

/// Makes both threads return without calling the observer. Called when the process exits.
void CaptureWorker::Cancel()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        end = End::Cancelled;
    }
    latest->Close();
    changed.notify_all();
}

} // namespace Zelkor::StandIn
