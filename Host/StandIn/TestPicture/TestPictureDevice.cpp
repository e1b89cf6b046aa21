#include <StandIn/TestPicture/TestPictureScene.h>
#include <StandIn/TestPicture/TestPictureSettings.h>

#include <Zelkor/StandIn/CaptureDevice.h>

#include <cstdio>
#include <iterator>
#include <utility>

namespace Zelkor::StandIn {

using Proc::PixFmt;

namespace {

using Clock = std::chrono::steady_clock;

constexpr char ID[] = "test-picture";
constexpr char NAME[] = "Test picture";

constexpr Acquis::Rational RATES[] = {{5, 1}, {15, 1}, {24000, 1001}, {25, 1}, {30000, 1001}, {30, 1}, {60, 1}};

struct Size
{
    const char* name;
    PixFmt pixFmt;
    int width;
    int height;
};

constexpr Size SIZES[] = {
    {"1280×720", PixFmt::NV12, 1280, 720},   {"640×480", PixFmt::YUY2, 640, 480}, {"640×360", PixFmt::I420, 640, 360},
    {"1920×1080", PixFmt::NV12, 1920, 1080}, {"320×240", PixFmt::BGRA, 320, 240},
};

// High-definition video uses BT.709, as with cameras.
constexpr int LOWEST_BT709_HEIGHT = 720;

CaptureDevice::Modes CreateModes()
{
    CaptureDevice::Modes modes;
    for (const auto& size : SIZES) {
        FrameFormat format{size.pixFmt, size.width, size.height};
        format.matrix = size.height >= LOWEST_BT709_HEIGHT ? ColorMatrix::BT709 : ColorMatrix::BT601;
        modes.emplace_back(
            new VideoMode(size.name, format, std::vector<Acquis::Rational>(std::begin(RATES), std::end(RATES))));
    }
    return modes;
}

/// Returns the length of `count` frame periods, without accumulating rounding errors.
Clock::duration Periods(const Acquis::Rational& rate, std::int64_t count)
{
    const double seconds = double(count) * double(rate.denominator) / double(rate.numerator);
    return std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
}

std::string CounterText(double time, std::int64_t frameNumber)
{
    char text[64];
    const int seconds = int(time);
    std::snprintf(text, sizeof text, "%02d:%02d.%d %06lld", seconds / 60 % 100, seconds % 60, int(time * 10) % 10,
                  static_cast<long long>(frameNumber % 1'000'000));
    return text;
}

class Source : public CaptureSource
{
public:
    Source(const FrameFormat& format, const Acquis::Rational& rate, std::shared_ptr<TestPictureSettings> settings)
        : format(format), rate(rate), settings(std::move(settings))
    {}

    CaptureError Run(SourceChannel& channel) override
    {
        const TestPictureScene scene(format.width, format.height, format.matrix);
        const double step = double(rate.denominator) / double(rate.numerator);
        const auto start = Clock::now();
        double time = 0;
        std::int64_t number = 0;
        while (!channel.WaitForEnd(start + Periods(rate, number))) {
            channel.Deliver(Draw(scene, time, number));
            // Skips frames on a slow machine, so that the rest is on time.
            const auto behind = Clock::now() - start - Periods(rate, number + 1);
            const auto period = Periods(rate, 1);
            const std::int64_t passed = 1 + (behind > period ? behind / period : 0);
            number += passed;
            time += double(passed) * step * settings->speedPercent / 100;
        }
        return CaptureError::None;
    }

private:
    boost::intrusive_ptr<VideoFrame> Draw(const TestPictureScene& scene, double time, std::int64_t number) const
    {
        const std::string text = settings->showsCounter ? CounterText(time, number) : std::string();
        const auto now = std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now().time_since_epoch());
        return VideoFrame::Create(
            format,
            [&](const auto& data, const auto& strides) {
                TestPictureCanvas canvas(format, data, strides);
                scene.Draw(canvas, time, text);
            },
            now.count());
    }

    const FrameFormat format;
    const Acquis::Rational rate;
    const std::shared_ptr<TestPictureSettings> settings;
};

class Device : public CaptureDevice
{
public:
    Device() : CaptureDevice(Kind::TestPicture, ID, NAME, CreateModes()) {}

    std::unique_ptr<CaptureSource> CreateSource(const VideoMode& mode) const override
    {
        return std::make_unique<Source>(mode.GetFormat(), mode.GetFrameRate(), settings);
    }

    boost::intrusive_ptr<Acquis::IDeviceSettings> GetDeviceSettings() const override { return dialog; }

private:
    const std::shared_ptr<TestPictureSettings> settings = std::make_shared<TestPictureSettings>();
    const boost::intrusive_ptr<Acquis::IDeviceSettings> dialog = CreateTestPictureDialog(settings);
};

} // namespace

boost::intrusive_ptr<CaptureDevice> CreateTestPictureDevice()
{
    return new Device;
}

} // namespace Zelkor::StandIn
