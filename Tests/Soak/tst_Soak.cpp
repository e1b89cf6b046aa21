#include <UI/Widgets/VideoPreviewWidget.h>
#include <UI/Widgets/WebCameraPreviewStream.h>

#include <Support/TestCase.h>

#include <Zelkor/StandIn/CaptureDevice.h>
#include <Zelkor/StandIn/CaptureEngine.h>

#include <QFile>

#if defined(Q_OS_WIN)
#include <QtCore/qt_windows.h>

#include <psapi.h>
#endif
#if defined(__GLIBC__)
#include <malloc.h>
#endif

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define VX_SANITIZED
// Declared here because GCC does not ship the header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

using namespace Zelkor;

namespace {

// Returns the resident memory of this process in megabytes. With a sanitizer, which uses memory itself and delays
// deallocation, returns the allocated memory.
double Resident()
{
#if defined(VX_SANITIZED)
    return double(__sanitizer_get_current_allocated_bytes()) / 1e6;
#elif defined(Q_OS_WIN)
    PROCESS_MEMORY_COUNTERS counters = {};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return double(counters.WorkingSetSize) / 1e6;
#else
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * 4096 / 1e6;
#endif
}

} // namespace

/// Fails when the use of memory grows after the first third of a run. The environment variable VX_SECONDS sets the
/// length of a run; more than five minutes need a larger QTEST_FUNCTION_TIMEOUT as well.
class tst_Soak : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
#if defined(__GLIBC__)
        // Returns frames to the system when they are freed. Otherwise the allocator keeps a varying number of them.
        mallopt(M_MMAP_THRESHOLD, 128 * 1024);
#endif
    }

    // Shows the test picture at 60 frames per second and restarts the stream every second, in the next mode.
    void streamKeepsItsMemory()
    {
        auto* preview = new Vx::UI::VideoPreviewWidget(nullptr);
        preview->SetPreviewWidth(640);
        preview->SetPreviewHeight(360);
        preview->show();
        auto* stream = new Vx::WebCameraPreviewStream(preview);
        const auto device = StandIn::CreateTestPictureDevice();
        const auto& modes = device->GetModes();
        const int seconds = std::max(6, qEnvironmentVariable("VX_SECONDS", "15").toInt());
        double early = 0; // peak of the memory use in the first third, in megabytes
        double late = 0;  // and in the rest
        for (int second = 0; second <= seconds; ++second) {
            stream->StopStream();
            const auto& mode = modes[size_t(second) % modes.size()];
            stream->SetDevice(device, QString::fromStdString(mode->GetName()), 60);
            stream->StartStream();
            double& peak = 3 * second <= seconds ? early : late;
            peak = std::max(peak, Resident());
            QTest::qWait(1000);
        }
        qInfo("peak %.1f MB, then %.1f MB", early, late);
        delete preview; // while the stream runs
        QVERIFY(StandIn::WaitForEngineIdle(std::chrono::seconds(10)));
        // The first third covers every mode. The tolerance is for the allocator, and for one picture more or less at
        // the time of a measurement.
        constexpr double LARGEST_PICTURE = 1920 * 1080 * 4 / 1e6;
        QVERIFY(late <= early * 1.1 + LARGEST_PICTURE);
    }
};

VX_TEST_MAIN(tst_Soak)
#include "tst_Soak.moc"
