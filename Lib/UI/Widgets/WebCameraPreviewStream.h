#pragma once

#include <UI/Common/Export.h>

#include <Zelkor/Acquis/ICaptureDevice.h>

#include <QObject>

#include <memory>

namespace Zelkor::Vx {

namespace UI {
class VideoPreviewWidget;
}

/// Streams the live picture of a capture device to a `UI::VideoPreviewWidget`.
///
/// The stream creates a capture session for the device. While the session runs, a worker thread reads the newest frame
/// once per frame period and passes it to the preview. After an error the stream retries 200 ms later, up to six times,
/// and then emits `WebCameraOpenError`.
///
/// The preview owns the stream and may be deleted while the stream runs, which blocks until a running conversion has
/// ended. GUI thread only, except `StartStream` and `StopStream`, which any thread may call.
class VX_WIDGETS_EXPORT WebCameraPreviewStream : public QObject
{
    Q_OBJECT

public:
    /// `preview` shows the frames and owns the stream.
    explicit WebCameraPreviewStream(UI::VideoPreviewWidget* preview);
    ~WebCameraPreviewStream() override;

    /// Stops the stream and creates a session for the device's first mode called `settingsName`, or else its first
    /// mode, at the rate equal to `frameRate` per second, or else the last rate of the mode. A null device removes the
    /// session. Logs and ignores rates below 1 per second; logs a device without a usable mode, which gets no session.
    ///
    /// Throws `std::logic_error` if the engine rejects the mode; the stream then has a device but no session. In a
    /// retry, which runs in the event loop, the exception is logged and counts as a failed start.
    void SetDevice(const boost::intrusive_ptr<Acquis::ICaptureDevice>& device, const QString& settingsName,
                   double frameRate);

    /// Starts the session; frames appear once the device is open. Does nothing without a session, so call `SetDevice`
    /// again after `StopStream`. Any thread.
    void StartStream();

    /// Stops and releases the session, cancels a pending retry and resets the preview. Blocks until the worker thread
    /// has ended. Any thread.
    void StopStream();

    /// Returns whether the device has a settings dialog.
    bool IsWebcameraSettingsAvailable() const;

    /// Opens the settings dialog of the device, if it has one.
    void ShowCurrentDeviceSettings();

Q_SIGNALS:
    /// Emitted on the GUI thread when the start and six retries have failed, once for each `StartStream`.
    void WebCameraOpenError();

private:
    class Q_DECL_HIDDEN Impl;
    std::shared_ptr<Impl> impl; ///< shared with the engine's threads during a call
};

} // namespace Zelkor::Vx
