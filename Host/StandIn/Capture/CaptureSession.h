#pragma once

#include <StandIn/Capture/CaptureRun.h>

#include <Zelkor/StandIn/CaptureDevice.h>
#include <Zelkor/Time/IChronometer.h>

namespace Zelkor::StandIn {

/// Captures one device of this engine in one of its modes.
///
/// The session counts its references itself: the engine's threads take one for the length of an observer call, but
/// only as long as there is another one. Nothing of the engine keeps a session beyond that.
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

    void AddRef() const noexcept override;
    void Release() const noexcept override;
    int GetRefCount() const noexcept override;

    /// A reference to the session; null when its last one was released. The object must not be destroyed meanwhile.
    boost::intrusive_ptr<CaptureSession> TryReference();

private:
    const boost::intrusive_ptr<const CaptureDevice> device;
    const boost::intrusive_ptr<const VideoMode> mode;
    const std::shared_ptr<const Time::IChronometer> chronometer;
    const std::shared_ptr<ObserverCalls> calls;
    mutable std::atomic<int> count{0};

    std::mutex mutex; ///< guards what follows
    std::shared_ptr<CaptureRun> run;
};

} // namespace Zelkor::StandIn
