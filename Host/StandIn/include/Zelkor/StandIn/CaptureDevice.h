#pragma once

#include <Zelkor/Acquis/ICaptureDevice.h>
#include <Zelkor/Acquis/ICaptureSession.h>
#include <Zelkor/StandIn/VideoFrame.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace Zelkor::StandIn {

/// Codes that `ICaptureSessionObserver::handleError` gets from this engine.
enum class CaptureError : int {
    None = 0,
    CannotOpen = 1, ///< the device is not there, is in use, or refuses the mode
    Lost = 2,       ///< the device was unplugged or went silent for good
    Failed = 3,     ///< anything else that broke down while running
};

/// What a source is given while it runs: where its frames go, and when it has to end. Any thread may call.
class VX_HOST_INTERFACE SourceChannel
{
public:
    /// Publishes the newest frame. The first call has the observer told that the session has started; it does not
    /// wait for that. A session with a clock of its own stamps the frame with its time now.
    virtual void Deliver(const boost::intrusive_ptr<VideoFrame>& frame) = 0;

    /// Ends the run from any thread, with the given error; `None` is a regular end. The first call counts.
    virtual void Fail(CaptureError error) = 0;

    /// True from the moment the run has to end: the session was stopped, or `Fail` was called.
    virtual bool IsEnding() const = 0;

    /// Waits until the run has to end or `deadline` is there. True when it has to end.
    virtual bool WaitForEnd(std::chrono::steady_clock::time_point deadline) = 0;

protected:
    ~SourceChannel() = default;
};

/// One run of a device in one mode. A new source is made for each start of a session.
class VX_HOST_INTERFACE CaptureSource
{
public:
    virtual ~CaptureSource() = default;

    /// Opens the device, delivers frames until `channel.IsEnding()`, and closes the device before returning. Runs on a
    /// thread of the session's own and may take its time to open; a session that was stopped meanwhile does not wait.
    /// Returns `None` after a regular end, also when the source ran out of pictures by itself.
    virtual CaptureError Run(SourceChannel& channel) = 0;
};

/// A mode of a device of this engine: a picture format and the rates it comes in.
class VX_HOST_EXPORT VideoMode : public RefCounted<Acquis::IVideoCaptureSettings>
{
public:
    /// `name` is what the person sees, "1280×720" for instance; `detail` is the device's own word for the mode.
    VideoMode(std::string name, const FrameFormat& format, std::vector<Acquis::Rational> rates,
              std::string detail = std::string());
    ~VideoMode() override;

    unsigned GetKind() const override { return Acquis::SETTINGS_KIND_VIDEO; }
    bool IsGeneric() const override { return false; }
    std::string GetName() const override { return name; }
    void GetFrameRates(std::vector<Acquis::Rational>& rates) const override;
    void SetFrameRate(const Acquis::Rational& rate) override;

    const FrameFormat& GetFormat() const { return format; }
    const std::string& GetDetail() const { return detail; }

    /// The rate set last, else the mode's last one. Any thread may call.
    Acquis::Rational GetFrameRate() const;

private:
    struct ChosenRate;

    std::string name;
    FrameFormat format;
    std::vector<Acquis::Rational> rates;
    std::string detail;
    std::unique_ptr<ChosenRate> chosen;
};

/// What a device of this engine is, beside what the boundary asks of it. Write a subclass to capture something else.
class VX_HOST_EXPORT CaptureDevice : public RefCounted<Acquis::ICaptureDevice>
{
public:
    enum class Kind { Camera, Screen, TestPicture, Other };

    using Modes = std::vector<boost::intrusive_ptr<VideoMode>>;

    /// `id` identifies the device across restarts and re-plugging; `name` is for people. Both UTF-8.
    CaptureDevice(Kind kind, std::string id, std::string name, Modes modes);
    ~CaptureDevice() override;

    void GetSettings(std::vector<boost::intrusive_ptr<Acquis::ICaptureSettings>>& settings,
                     unsigned kind) const override;

    Kind GetKind() const { return kind; }
    const std::string& GetId() const { return id; }
    const std::string& GetName() const { return name; }
    const Modes& GetModes() const { return modes; }

    /// A source for one run in `mode`, at the rate that is set on it now; null when the device is gone. Called on the
    /// thread that starts the session, so it opens nothing.
    virtual std::unique_ptr<CaptureSource> CreateSource(const VideoMode& mode) const = 0;

    /// The device's own settings dialog, null where it has none.
    virtual boost::intrusive_ptr<Acquis::IDeviceSettings> GetDeviceSettings() const;

private:
    Kind kind;
    std::string id;
    std::string name;
    Modes modes;
};

/// The built-in moving test picture. It needs no device and no other library. Its settings dialog changes how the
/// picture moves.
VX_HOST_EXPORT boost::intrusive_ptr<CaptureDevice> CreateTestPictureDevice();

} // namespace Zelkor::StandIn
