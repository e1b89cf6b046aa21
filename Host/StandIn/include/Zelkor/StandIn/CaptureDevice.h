#pragma once

#include <Zelkor/Acquis/ICaptureDevice.h>
#include <Zelkor/Acquis/ICaptureSession.h>
#include <Zelkor/StandIn/VideoFrame.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace Zelkor::StandIn {

/// The codes that this engine passes to `ICaptureSessionObserver::handleError`.
enum class CaptureError : int {
    None = 0,       ///< no error; never passed to an observer
    CannotOpen = 1, ///< the device is missing, busy, or rejects the mode
    Lost = 2,       ///< the device was unplugged or stopped delivering
    Failed = 3,     ///< any other failure while running
};

/// The connection of a running source to its session. Any thread may call.
class VX_HOST_INTERFACE SourceChannel
{
public:
    /// Publishes a frame. Ignores null. The first frame starts the session, of which the observer is notified on
    /// another thread. A session that was created with a chronometer replaces the frame's time by the current one. Does
    /// not block.
    virtual void Deliver(const boost::intrusive_ptr<VideoFrame>& frame) = 0;

    /// Ends the run with an error, or regularly with `None`. Later calls are ignored.
    virtual void Fail(CaptureError error) = 0;

    /// Returns true once the run has to end: the session was stopped, or `Fail` was called.
    virtual bool IsEnding() const = 0;

    /// Blocks until the run has to end or `deadline` is reached. Returns true when the run has to end.
    virtual bool WaitForEnd(std::chrono::steady_clock::time_point deadline) = 0;

protected:
    ~SourceChannel() = default;
};

/// One run of a device in one mode. Each start of a session creates a new source.
class VX_HOST_INTERFACE CaptureSource
{
public:
    virtual ~CaptureSource() = default;

    /// Opens the device, delivers frames until `channel.IsEnding()`, and closes the device before it returns. Called on
    /// a worker thread and may block: a session that is stopped meanwhile does not wait. Returns `None` after a regular
    /// end, which includes the end of the source's material. An exception ends the session with `Failed`.
    virtual CaptureError Run(SourceChannel& channel) = 0;
};

/// A mode of a device of this engine: a frame format and its frame rates.
class VX_HOST_EXPORT VideoMode : public RefCounted<Acquis::IVideoCaptureSettings>
{
public:
    /// `name` is shown to the user, for example "1280×720". `rates` are in frames per second, the last one is the
    /// default. `detail` identifies the mode to the device, see `CreateGStreamerDevice`.
    VideoMode(std::string name, const FrameFormat& format, std::vector<Acquis::Rational> rates,
              std::string detail = std::string());
    ~VideoMode() override;

    unsigned GetKind() const override { return Acquis::SETTINGS_KIND_VIDEO; }
    bool IsGeneric() const override { return false; }
    std::string GetName() const override { return name; }
    void GetFrameRates(std::vector<Acquis::Rational>& rates) const override;
    /// Logs an error and ignores a rate of 0 or less. Any thread may call.
    void SetFrameRate(const Acquis::Rational& rate) override;

    const FrameFormat& GetFormat() const { return format; }
    const std::string& GetDetail() const { return detail; }

    /// Returns the rate that was set last, or the last one of the mode. Any thread may call.
    Acquis::Rational GetFrameRate() const;

private:
    struct ChosenRate;

    std::string name;
    FrameFormat format;
    std::vector<Acquis::Rational> rates;
    std::string detail;
    std::unique_ptr<ChosenRate> chosen;
};

/// Base class of the devices that this engine captures. Subclass it to capture from your own source.
class VX_HOST_EXPORT CaptureDevice : public RefCounted<Acquis::ICaptureDevice>
{
public:
    /// What the device captures.
    enum class Kind {
        Camera,      ///< a camera
        Screen,      ///< the whole screen
        TestPicture, ///< the built-in test picture
        Other,       ///< any other source
    };

    using Modes = std::vector<boost::intrusive_ptr<VideoMode>>;

    /// `id` identifies the device across restarts and after it was unplugged. `name` is shown to the user. Both are
    /// UTF-8.
    CaptureDevice(Kind kind, std::string id, std::string name, Modes modes);
    ~CaptureDevice() override;

    void GetSettings(std::vector<boost::intrusive_ptr<Acquis::ICaptureSettings>>& settings,
                     unsigned kind) const override;

    Kind GetKind() const { return kind; }
    const std::string& GetId() const { return id; }
    const std::string& GetName() const { return name; }
    const Modes& GetModes() const { return modes; }

    /// Creates a source for one run in `mode`, at its current rate. Returns null when the device is gone. Called on the
    /// thread that starts the session, so it must not open the device.
    virtual std::unique_ptr<CaptureSource> CreateSource(const VideoMode& mode) const = 0;

    /// Returns the settings dialog of the device, or null, the default, when it has none.
    virtual boost::intrusive_ptr<Acquis::IDeviceSettings> GetDeviceSettings() const;

private:
    Kind kind;
    std::string id;
    std::string name;
    Modes modes;
};

/// Creates the built-in moving test picture, which needs neither a device nor another library. Its settings dialog
/// changes the speed and shows or hides a counter.
VX_HOST_EXPORT boost::intrusive_ptr<CaptureDevice> CreateTestPictureDevice();

} // namespace Zelkor::StandIn
