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
    : device(device), mode(mode), chronometer(chronometer), control(std::make_shared<SessionControlBlock>(*this))
{}

CaptureSession::~CaptureSession()
{
    Stop();
}

void CaptureSession::Start(const std::shared_ptr<Acquis::ICaptureSessionObserver>& observer)
{
    if (!observer) {
        LOG(ERROR) << "A capture session needs an observer";
        return;
    }
    std::shared_ptr<CaptureWorker> previous; // released after the lock
    const std::lock_guard<std::mutex> lock(mutex);
    if (worker && !worker->HasEnded())
        return;
    // Created here and not on the worker's thread, so that the frame rate set now is the one that counts.
    auto next = std::make_shared<CaptureWorker>(CreateSource(*device, *mode), chronometer, observer, queue, control);
    previous = std::exchange(worker, std::move(next));
    worker->Start();
}

void CaptureSession::Stop()
{
    std::shared_ptr<CaptureWorker> stopped;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        stopped = std::exchange(worker, nullptr);
    }
    if (stopped)
        stopped->Stop();
    queue->WaitUntilIdle();
}

void CaptureSession::GetDeviceSettings(std::vector<boost::intrusive_ptr<Acquis::IDeviceSettings>>& handles) const
{
    handles.clear();
    if (auto settings = device->GetDeviceSettings())
        handles.push_back(std::move(settings));
}

void CaptureSession::Release() const noexcept
{
    if (control->Release())
        delete this;
}

} // namespace Zelkor::StandIn
