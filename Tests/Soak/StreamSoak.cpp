// Shows the test picture at 60 frames per second and restarts the stream every second. Fails when memory grows after
// the first third of the run. The first argument is the length of the run in seconds.

#include "ProcessUse.h"

#include <UI/Widgets/VideoPreviewWidget.h>
#include <UI/Widgets/WebCameraPreviewStream.h>

#include <Support/TestCase.h>

#include <Zelkor/StandIn/CaptureDevice.h>
#include <Zelkor/StandIn/CaptureEngine.h>

#include <cstdio>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

int main(int argc, char* argv[])
{
    Support::PrepareProcess(argv[0]);
    QApplication application(argc, argv);
#if defined(__GLIBC__)
    // Returns frames to the system when they are freed. Otherwise the allocator keeps a varying number of them.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
#endif
    const int seconds = argc > 1 ? std::max(3, std::atoi(argv[1])) : 10;

    auto* preview = new Zelkor::Vx::UI::VideoPreviewWidget(nullptr);
    preview->SetPreviewWidth(640);
    preview->SetPreviewHeight(360);
    preview->show();
    auto* stream = new Zelkor::Vx::WebCameraPreviewStream(preview);
    const auto device = Zelkor::StandIn::CreateTestPictureDevice();
    const auto& modes = device->GetModes();

    const Support::Peaks memory = Support::WatchMemory(seconds, [&](int second) {
        stream->StopStream();
        const auto& mode = modes[size_t(second) % modes.size()];
        stream->SetDevice(device, QString::fromStdString(mode->GetName()), 60);
        stream->StartStream();
    });

    delete preview; // while the stream runs
    if (!Zelkor::StandIn::WaitForEngineIdle(std::chrono::seconds(10))) {
        std::printf("threads of the engine are still running\n");
        return 1;
    }
    // The first third covers every mode. The tolerance is for the allocator, and for one picture more or less at the
    // time of a measurement.
    constexpr double TOLERANCE = 1.1;
    constexpr double LARGEST_PICTURE = 1920 * 1080 * 4 / 1e6;
    return memory.late <= memory.early * TOLERANCE + LARGEST_PICTURE ? 0 : 1;
}
