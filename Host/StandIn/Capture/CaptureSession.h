#pragma once

#include <StandIn/Capture/CaptureWorker.h>

namespace Zelkor::StandIn {

/// Captures one device of the stand-in in one of its modes.
///
/// A worker references the session only during an observer call, and only while there is another reference. So the
/// engine never keeps a session alive.
class CaptureSession : public virtual Acquis::ICaptureSession
{
public:
    CaptureSession(const boost::intrusive_ptr<const CaptureDevice>& device,
                   const boost::intrusive_ptr<const VideoMode>& mode,
                   const std::shared_ptr<const Time::IChronometer>& chronometer);
    ~CaptureSession() override;
    CaptureSession(const CaptureSession&) = delete;
    CaptureSession& operator=(const CaptureSession&) = delete;

    void Start(const std::shared_ptr<Acquis::ICaptureSessionObserver>& observer) override;
    void Stop() override;
    void GetDeviceSettings(std::vector<boost::intrusive_ptr<Acquis::IDeviceSettings>>& handles) const override;

    void AddRef() const noexcept override { control->AddRef(); }
    void Release() const noexcept override;
    int GetRefCount() const noexcept override { return control->GetRefCount(); }

private:
    const boost::intrusive_ptr<const CaptureDevice> device;
    const boost::intrusive_ptr<const VideoMode> mode;
    const std::shared_ptr<const Time::IChronometer> chronometer;
    const std::shared_ptr<SessionControlBlock> control;
    const std::shared_ptr<ObserverQueue> queue = std::make_shared<ObserverQueue>();

    std::mutex mutex; ///< guards `worker`
    std::shared_ptr<CaptureWorker> worker;
};

} // namespace Zelkor::StandIn
