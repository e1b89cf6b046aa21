#pragma once

#include <UI/Common/Export.h>

#include <Zelkor/Acquis/ICaptureDevice.h>

#include <QObject>

#include <memory>

namespace Zelkor::Vx {

namespace UI {
class VideoPreviewWidget;
}

/// Runs the live picture of a capture device in a `UI::VideoPreviewWidget`.
///
/// The stream builds a capture session for the device, and while it runs, a thread of the stream's own reads the
/// newest frame once per frame period and hands it to the preview. When the session reports an error the stream tries
/// again 200 ms later, six times at most, and then gives up with `WebCameraOpenError`.
///
/// The stream is a child of its preview and dies with it, also while it runs. GUI thread, except `StartStream` and
/// `StopStream`, which any thread may call.
class VX_WIDGETS_EXPORT WebCameraPreviewStream : public QObject
{
    Q_OBJECT

public:
    /// `preview` takes the frames and owns the stream.
    explicit WebCameraPreviewStream(UI::VideoPreviewWidget* preview);
    ~WebCameraPreviewStream() override;

    /// Stops what runs, and chooses what `StartStream` will show: the device's first mode called `settingsName`, or
    /// its first one when none is; in this mode the rate that is exactly `frameRate` per second, or the last one when
    /// none is. A null device leaves the stream without one. Rates below 1 per second are logged and ignored; a device
    /// without a usable mode is logged and leaves the stream without a session.
    ///
    /// Throws `std::logic_error` when the engine finds the mode incompatible with the device; the stream then has the
    /// device and no session. In a retry, which Qt's event loop calls and no exception may leave, the error is logged
    /// and counts as a failed start.
    void SetDevice(const boost::intrusive_ptr<Acquis::ICaptureDevice>& device, const QString& settingsName,
                   double frameRate);

    /// Starts the session; the picture comes when the device is open. Does nothing without a session, so after
    /// `StopStream` it needs `SetDevice` first.
    void StartStream();

    /// Stops and drops the session, and clears the preview. A retry that was due does not come.
    void StopStream();

    /// Whether the device has a settings dialog of its own.
    bool IsWebcameraSettingsAvailable() const;

    /// Opens that dialog; nothing where there is none.
    void ShowCurrentDeviceSettings();

Q_SIGNALS:
    /// The device could not be opened, nor in any of the six retries. Comes once for a start, on the GUI thread.
    void WebCameraOpenError();

private:
    class Q_DECL_HIDDEN Impl;
    std::shared_ptr<Impl> impl; ///< the engine's threads may hold on to it for the length of a call
};

} // namespace Zelkor::Vx
