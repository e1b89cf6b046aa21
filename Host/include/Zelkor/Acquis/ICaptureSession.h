#pragma once

#include <Zelkor/Acquis/IFrameProvider.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace Zelkor::Acquis {

class ICaptureSession;

/// Is told what becomes of a session.
///
/// The engine calls on a thread of its own, one call at a time for each start, and holds nothing meanwhile that
/// `ICaptureSession::Stop` needs from other threads. Observers do not throw.
class VX_HOST_INTERFACE ICaptureSessionObserver
{
public:
    virtual ~ICaptureSessionObserver() = default;

    /// The session runs. `startTime` is the time of its first frame in nanoseconds of the session's clock;
    /// `provider` gives the frames.
    virtual void handleStarted(ICaptureSession& session, std::int64_t startTime,
                               const boost::intrusive_ptr<IFrameProvider>& provider) = 0;

    /// The session could not start, or broke down; `code` is the engine's. It may be started again.
    virtual void handleError(ICaptureSession& session, int code) = 0;

    /// The session that had started runs no longer, by `Stop` or by itself.
    virtual void handleStopped() = 0;
};

/// The device's own settings dialog.
class VX_HOST_INTERFACE IDeviceSettings : public virtual IRefCountable
{
public:
    /// Opens the dialog. GUI thread; returns when the dialog is open.
    virtual void ShowSettingsDialog() = 0;
};

/// Captures one or more devices. Releasing the last reference of a running session stops it.
class VX_HOST_INTERFACE ICaptureSession : public virtual IRefCountable
{
public:
    /// Begins to open the devices and returns at once; what comes of it is told to `observer`, which the session
    /// keeps until it ends. Does nothing while the session runs. Any thread may call.
    virtual void Start(const std::shared_ptr<ICaptureSessionObserver>& observer) = 0;

    /// Ends the session. When this returns, no observer call runs and none will come, save one that itself called
    /// `Stop`. Waits for a running observer call, never for a device. Any thread may call, at any time.
    virtual void Stop() = 0;

    /// Replaces `handles` by the settings dialogs of the session's devices, empty where they have none.
    virtual void GetDeviceSettings(std::vector<boost::intrusive_ptr<IDeviceSettings>>& handles) const = 0;
};

} // namespace Zelkor::Acquis
