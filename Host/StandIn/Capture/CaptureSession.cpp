#include <StandIn/Capture/CaptureSession.h>

#include <glog/logging.h>

#include <exception>
#include <utility>

namespace Zelkor::StandIn {

namespace {

std::unique_ptr<CaptureSource> CreateSource(const CaptureDevice& device, const VideoMode& mode)
{
    try {
        return device.CreateSource(mode);
    } catch (const std::exception& error) {
        LOG(ERROR) << "No source for " << device.GetName() << ": " << error.what();
    } catch (...) {
        LOG(ERROR) << "No source for " << device.GetName();
    }
    return nullptr;
}

} // namespace

CaptureSession::CaptureSession(const boost::intrusive_ptr<const CaptureDevice>& device,
                               const boost::intrusive_ptr<const VideoMode>& mode,
                               const std::shared_ptr<const Time::IChronometer>& chronometer)
    : device(device), mode(mode), chronometer(chronometer), calls(std::make_shared<ObserverCalls>(*this))
{}

CaptureSession::~CaptureSession()
{
    calls->ForgetSession();
    Stop();
}

void CaptureSession::Start(const std::shared_ptr<Acquis::ICaptureSessionObserver>& observer)
{
    if (!observer) {
        LOG(ERROR) << "A capture session needs an observer";
        return;
    }
    std::shared_ptr<CaptureRun> former;
    const std::lock_guard<std::mutex> lock(mutex);
    if (run && !run->HasEnded())
        return;
    // Made here and not on the engine's thread: the rate that counts is the one that is set now.
    auto next = std::make_shared<CaptureRun>(CreateSource(*device, *mode), chronometer, observer, calls);
    former = std::exchange(run, std::move(next));
    run->Start();
}

void CaptureSession::Stop()
{
    std::shared_ptr<CaptureRun> stopped;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        stopped = std::exchange(run, nullptr);
    }
    if (stopped)
        stopped->Stop();
    calls->WaitForSilence();
}

void CaptureSession::GetDeviceSettings(std::vector<boost::intrusive_ptr<Acquis::IDeviceSettings>>& handles) const
{
    handles.clear();
    if (auto settings = device->GetDeviceSettings())
        handles.push_back(std::move(settings));
}

void CaptureSession::AddRef() const noexcept
{
    count.fetch_add(1, std::memory_order_relaxed);
}

void CaptureSession::Release() const noexcept
{
    if (count.fetch_sub(1, std::memory_order_acq_rel) == 1)
        delete this;
}

int CaptureSession::GetRefCount() const noexcept
{
    return count.load(std::memory_order_relaxed);
}

boost::intrusive_ptr<CaptureSession> CaptureSession::TryReference()
{
    int seen = count.load(std::memory_order_relaxed);
    while (seen > 0) {
        if (count.compare_exchange_weak(seen, seen + 1, std::memory_order_acq_rel))
            return boost::intrusive_ptr<CaptureSession>(this, false);
    }
    return nullptr;
}

} // namespace Zelkor::StandIn
