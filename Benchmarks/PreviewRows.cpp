#include "SpeedTable.h"

#include <UI/Widgets/VideoPreviewWidget.h>
#include <UI/Widgets/WebCameraPreviewStream.h>

#include <Zelkor/StandIn/CaptureDevice.h>
#include <Zelkor/StandIn/CaptureEngine.h>

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QLabel>
#include <QTimer>

#include <libyuv.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <ctime>
#include <memory>
#include <thread>
#include <vector>

using namespace Zelkor;

namespace SpeedTable {

namespace {

constexpr int WIDTH = 1920;
constexpr int HEIGHT = 1080;
constexpr int FRAME_RATE = 60;

boost::intrusive_ptr<StandIn::VideoFrame> MakeFrame(Proc::PixFmt pixFmt)
{
    StandIn::FrameFormat format;
    format.pixFmt = pixFmt;
    format.width = WIDTH;
    format.height = HEIGHT;
    return StandIn::VideoFrame::Create(format, [&](const auto& data, const auto& strides) {
        for (size_t plane = 0; plane < data.size() && data[plane]; ++plane) {
            const int rows = plane == 0 ? HEIGHT : HEIGHT / 2;
            for (int y = 0; y < rows; ++y) {
                for (int x = 0; x < strides[plane]; ++x)
                    data[plane][y * strides[plane] + x] = std::uint8_t(x + 3 * y);
            }
        }
    });
}

std::unique_ptr<Vx::UI::VideoPreviewWidget> MakePreview()
{
    auto preview = std::make_unique<Vx::UI::VideoPreviewWidget>(nullptr);
    preview->SetPreviewWidth(320);
    preview->SetPreviewHeight(240);
    return preview;
}

// Only the conversion, into allocated memory.
class BareConversion
{
public:
    explicit BareConversion(boost::intrusive_ptr<StandIn::VideoFrame> frame)
        : frame(std::move(frame)), output(size_t(WIDTH) * HEIGHT * 4)
    {}

    void operator()()
    {
        const StandIn::Planes& planes = frame->GetPlanes();
        libyuv::NV12ToARGB(planes[0].data, planes[0].stride, planes[1].data, planes[1].stride, output.data(), WIDTH * 4,
                           WIDTH, HEIGHT);
    }

private:
    boost::intrusive_ptr<StandIn::VideoFrame> frame;
    std::vector<std::uint8_t> output;
};

Rounds UpdateViewConverted()
{
    const auto preview = MakePreview();
    const boost::intrusive_ptr<Proc::IDataVideo> frame = MakeFrame(Proc::PixFmt::NV12);
    BareConversion rival(MakeFrame(Proc::PixFmt::NV12));
    return Interleave([&] { preview->UpdateView(frame); }, [&] { rival(); }, 61, 20);
}

Rounds UpdateViewUnconverted()
{
    const auto preview = MakePreview();
    // Exceeds the cache, as with a camera.
    std::vector<boost::intrusive_ptr<StandIn::VideoFrame>> frames(12);
    std::generate(frames.begin(), frames.end(), [] { return MakeFrame(Proc::PixFmt::BGRA); });
    std::size_t shown = 0;
    std::size_t copied = 0;
    std::vector<std::uint8_t> copy(size_t(WIDTH) * HEIGHT * 4);
    return Interleave([&] { preview->UpdateView(frames[++shown % frames.size()]); },
                      [&] {
                          const auto& frame = frames[++copied % frames.size()];
                          std::memcpy(copy.data(), frame->GetPlanes()[0].data, copy.size());
                          // Keeps the compiler from removing the copy.
                          asm volatile("" : : "r"(copy.data()) : "memory");
                      },
                      61, 20);
}

Rounds PaintUnchangedFrame()
{
    const auto preview = MakePreview();
    preview->UpdateView(MakeFrame(Proc::PixFmt::BGRA));
    preview->show();
    QLabel label;
    label.setFixedSize(preview->size());
    label.setAlignment(Qt::AlignCenter);
    QPixmap picture(320, 180);
    picture.fill(Qt::darkGreen);
    label.setPixmap(picture);
    label.show();
    QCoreApplication::processEvents();
    QImage canvas(preview->size(), QImage::Format_RGB32);
    const auto paint = [&](QWidget& widget) { widget.render(&canvas, QPoint(), QRegion(), QWidget::RenderFlags()); };
    return Interleave([&] { paint(*preview); }, [&] { paint(label); }, 61, 200);
}

constexpr std::chrono::milliseconds PERIOD(1000 / FRAME_RATE);

// A device that delivers a few frames in turn, so that reading dominates the time. It delivers halfway between two
// reads, so that each read returns a different frame.
class FewFramesDevice : public StandIn::CaptureDevice
{
public:
    explicit FewFramesDevice(std::size_t count)
        : CaptureDevice(Kind::Other, "few-frames", "Few frames",
                        {new StandIn::VideoMode("only", StandIn::FrameFormat(), {{FRAME_RATE, 1}})}),
          count(count)
    {}

    std::unique_ptr<StandIn::CaptureSource> CreateSource(const StandIn::VideoMode&) const override
    {
        struct Source : StandIn::CaptureSource
        {
            explicit Source(std::size_t count) : frames(count)
            {
                std::generate(frames.begin(), frames.end(), [] { return MakeFrame(Proc::PixFmt::NV12); });
            }

            StandIn::CaptureError Run(StandIn::SourceChannel& channel) override
            {
                std::size_t number = 0;
                channel.Deliver(frames[0]);
                auto deadline = std::chrono::steady_clock::now() + PERIOD / 2;
                while (!channel.WaitForEnd(deadline)) {
                    channel.Deliver(frames[++number % frames.size()]);
                    deadline += PERIOD;
                }
                return StandIn::CaptureError::None;
            }

            std::vector<boost::intrusive_ptr<StandIn::VideoFrame>> frames;
        };
        return std::make_unique<Source>(count);
    }

private:
    const std::size_t count;
};

// Returns the CPU time of all threads, in seconds, while the event loop runs.
double ProcessorTimeOf(std::chrono::milliseconds duration)
{
    QEventLoop loop;
    QTimer::singleShot(duration, &loop, &QEventLoop::quit);
    const std::clock_t start = std::clock();
    loop.exec();
    return double(std::clock() - start) / CLOCKS_PER_SEC;
}

Rounds WorkerAtSixtyFrames()
{
    constexpr std::chrono::milliseconds ROUND(1000);
    constexpr int ROUNDS = 5;
    const auto preview = MakePreview(); // hidden: the GUI thread paints nothing
    auto* stream = new Vx::WebCameraPreviewStream(preview.get());
    const boost::intrusive_ptr<StandIn::CaptureDevice> device(new FewFramesDevice(3));
    BareConversion conversion(MakeFrame(Proc::PixFmt::NV12));

    Rounds result;
    for (int i = 0; i < ROUNDS; ++i) {
        stream->SetDevice(device, "only", FRAME_RATE);
        stream->StartStream();
        ProcessorTimeOf(std::chrono::milliseconds(200)); // until the stream runs
        result.path.push_back(ProcessorTimeOf(ROUND));
        stream->StopStream();
        StandIn::WaitForEngineIdle(std::chrono::seconds(5));

        std::thread pacedConversion([&] {
            auto deadline = std::chrono::steady_clock::now();
            for (auto spent = PERIOD; spent <= ROUND; spent += PERIOD) {
                std::this_thread::sleep_until(deadline += PERIOD);
                conversion();
            }
        });
        result.rival.push_back(ProcessorTimeOf(ROUND));
        pacedConversion.join();
    }
    return result;
}

// Returns the number of conversions after the first one while the device repeats one frame. Each conversion requests a
// repaint from the GUI thread.
Rounds ShownFrame()
{
    struct RequestCounter : QObject
    {
        bool eventFilter(QObject*, QEvent* event) override
        {
            requests += event->type() == QEvent::User;
            return false;
        }
        int requests = 0;
    } counter;
    const auto preview = MakePreview();
    preview->installEventFilter(&counter);
    auto* stream = new Vx::WebCameraPreviewStream(preview.get());
    stream->SetDevice(new FewFramesDevice(1), "only", FRAME_RATE);
    stream->StartStream();
    while (counter.requests == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    counter.requests = 0;
    ProcessorTimeOf(std::chrono::milliseconds(500));
    stream->StopStream();
    return {{double(counter.requests)}, {1.0}};
}

} // namespace

std::vector<Row> PreviewRows()
{
    return {
        {"update-nv12", "UpdateView, 1920x1080 NV12 into a 320x240 preview", "bare libyuv conversion of the frame", 1.2,
         UpdateViewConverted},
        {"update-bgra", "UpdateView, 1920x1080 BGRA into a 320x240 preview", "memcpy of the frame", 0.1,
         UpdateViewUnconverted},
        {"paint-preview", "paintEvent of the preview, unchanged frame", "QLabel with the same pixmap", 1.0,
         PaintUnchangedFrame},
        {"worker-60", "worker at 60 frames a second, 1080p, GUI idle", "processor time of the conversion alone", 1.5,
         WorkerAtSixtyFrames},
        {"shown-frame", "a frame that the stream has shown already: conversions", "one conversion", 0, ShownFrame},
    };
}

} // namespace SpeedTable
