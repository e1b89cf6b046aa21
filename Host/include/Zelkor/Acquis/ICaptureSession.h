#pragma once

#include <Zelkor/Acquis/IFrameProvider.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace Zelkor::Acquis {

class ICaptureSession;

/// Receives the notifications of a capture session.
///
/// The engine calls it on one of its threads, one call at a time for each start, and without a lock that
/// `ICaptureSession::Stop` needs. Observers must not throw.
class VX_HOST_INTERFACE ICaptureSessionObserver
{
public:
    virtual ~ICaptureSessionObserver() = default;

    /// The session has started. `startTime` is the time of its first frame, in nanoseconds of the session's clock.
    /// `provider` creates outputs that read its frames.
    virtual void handleStarted(ICaptureSession& session, std::int64_t startTime,
                               const boost::intrusive_ptr<IFrameProvider>& provider) = 0;

    /// The session could not start, or failed while running. `code` is specific to the engine. The session may be
    /// started again.
    virtual void handleError(ICaptureSession& session, int code) = 0;

    /// The session has ended after it had started: it was stopped, or its source has ended.
    virtual void handleStopped() = 0;
};

/// The settings dialog of a capture device.
class VX_HOST_INTERFACE IDeviceSettings : public virtual IRefCountable
{
public:
    /// Opens the dialog and returns at once. Call it on the GUI thread.
    virtual void ShowSettingsDialog() = 0;
};

/// Captures one or more devices. Releasing the last reference to a running session stops it.
class VX_HOST_INTERFACE ICaptureSession : public virtual IRefCountable
{
public:
    /// Starts to open the devices and returns at once. The outcome is reported to `observer`, which the session holds
    /// until it ends. Does nothing while the session runs. Any thread may call.
    virtual void Start(const std::shared_ptr<ICaptureSessionObserver>& observer) = 0;

    /// Ends the session. Blocks while an observer call runs, except within that call, and never waits for a device. The
    /// observer is not called after `Stop` has returned. Any thread may call at any time.
    virtual void Stop() = 0;

    /// Replaces `handles` with the settings dialogs of the session's devices. Empty when no device has one.
    virtual void GetDeviceSettings(std::vector<boost::intrusive_ptr<IDeviceSettings>>& handles) const = 0;
};

} // namespace Zelkor::Acquis
