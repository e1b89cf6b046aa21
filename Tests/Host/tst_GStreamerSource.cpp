#include <Support/CaptureMocks.h>
#include <Support/LogCapture.h>
#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <StandIn/GStreamer/CameraModes.h>
#include <StandIn/GStreamer/GStreamerFrames.h>
#include <StandIn/GStreamer/MicrophoneLevel.h>

#include <Zelkor/StandIn/CaptureEngine.h>
#include <Zelkor/StandIn/GStreamerDevice.h>

#include <atomic>
#include <cmath>

using namespace Zelkor;
using namespace Zelkor::StandIn;
using namespace Support;
using Proc::PixFmt;

namespace {

constexpr std::chrono::seconds LIMIT(30);

// Odd sizes reveal wrong planes and strides at the edges.
constexpr FrameFormat ODD_I420{PixFmt::I420, 322, 241};
// Whole JPEG blocks, because a partial block is decoded with noise.
constexpr FrameFormat WHOLE_BLOCKS{PixFmt::I420, 320, 240};

boost::intrusive_ptr<CaptureDevice> CreateDevice(const QString& description, const FrameFormat& format = ODD_I420,
                                                 const QString& detail = QString())
{
    return CreateGStreamerDevice("test", "Test", description.toStdString(),
                                 {new VideoMode("test", format, {{30000, 1001}}, detail.toStdString())});
}

QStringList Describe(const CaptureDevice::Modes& modes)
{
    QStringList lines;
    for (const auto& mode : modes) {
        lines += QString::fromStdString(mode->GetName()) + ':';
        std::vector<Acquis::Rational> rates;
        mode->GetFrameRates(rates);
        for (const auto& rate : rates)
            lines.back() += QString(" %1/%2").arg(rate.numerator).arg(rate.denominator);
    }
    return lines;
}

} // namespace

Q_DECLARE_METATYPE(FrameFormat)

class tst_GStreamerSource : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void deliversTheFormatOfTheMode_data()
    {
        QTest::addColumn<FrameFormat>("format");
        QTest::addColumn<QString>("extra");
        QTest::addColumn<QString>("detail");
        const auto row = [](const char* name, const FrameFormat& format, const char* extra, const char* detail = "") {
            QTest::newRow(name) << format << extra << detail;
        };
        for (const PixFmt pixFmt :
             {PixFmt::I420, PixFmt::YV12, PixFmt::NV12, PixFmt::NV21, PixFmt::YUY2, PixFmt::UYVY, PixFmt::RGB24,
              PixFmt::BGR24, PixFmt::RGBA, PixFmt::BGRA, PixFmt::ARGB, PixFmt::ABGR, PixFmt::BGRX, PixFmt::GRAY8})
            row(qPrintable(QString("PixFmt(%1)").arg(int(pixFmt))), {pixFmt, 322, 241}, "");
        row("full BT.709", {PixFmt::NV12, 322, 241, ColorMatrix::BT709, ColorRange::Full},
            " ! capsfilter caps=video/x-raw,format=BGRA ! videoconvert"
            " ! capsfilter caps=video/x-raw,colorimetry=(string)1:3:5:1");
        row("unsupported raw format", ODD_I420, "", "video/x-raw,format=Y444,width=322,height=241");
        row("JPEG", WHOLE_BLOCKS, " ! capsfilter caps=video/x-raw,format=BGRx ! jpegenc",
            "image/jpeg,width=320,height=240");
    }

    void deliversTheFormatOfTheMode()
    {
        QFETCH(FrameFormat, format);
        QFETCH(QString, extra);
        QFETCH(QString, detail);
        const QString source = "videotestsrc is-live=true pattern=solid-color foreground-color=0xffff0000";
        const auto session = CreateSession(CreateDevice(source + extra, format, detail));
        const auto observer = Start(session);
        QVERIFY(observer->WaitFor({"started"}));
        const auto frame = ReadFrame(*observer->CreateOutput());
        if (detail.isEmpty())
            QCOMPARE(frame->GetPixelFormat(), format.pixFmt);
        if (format.matrix == ColorMatrix::BT709) {
            QCOMPARE(frame->GetFormat().matrix, format.matrix);
            QCOMPARE(frame->GetFormat().range, format.range);
        }
        const QImage image = ImageOf(frame);
        QImage expected(format.width, format.height, image.format());
        expected.fill(format.pixFmt == PixFmt::GRAY8 ? image.pixelColor(160, 120) : QColor(254, 0, 0));
        QVERIFY(LargestDifference(image, expected) < 6);

        // The frame is still valid after its source has ended.
        session->Stop();
        QVERIFY(WaitForEngineIdle(LIMIT));
        QCOMPARE(ImageOf(frame), image);
    }

    void reportsTheEndOfThePipeline_data()
    {
        QTest::addColumn<QString>("description");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("no such file") << "filesrc location=missing.jpg ! jpegdec" << QStringList{"error 1"};
        QTest::newRow("mode is rejected")
            << "videotestsrc is-live=true ! capsfilter caps=video/x-raw,width=16,height=16" << QStringList{"error 1"};
        QTest::newRow("fails while running")
            << "videotestsrc is-live=true ! identity error-after=4" << QStringList{"started", "error 3"};
        QTest::newRow("end of stream") << "videotestsrc num-buffers=3" << QStringList{"started", "stopped"};
    }

    void reportsTheEndOfThePipeline()
    {
        QFETCH(QString, description);
        QFETCH(QStringList, calls);
        const auto session = CreateSession(CreateDevice(description));
        for (int i = 0; i < 2; ++i) {
            const auto observer = Start(session);
            QVERIFY(observer->WaitFor(calls));
            QVERIFY(WaitForEngineIdle(LIMIT));
            QCOMPARE(observer->Calls(), calls);
        }
    }

    void invalidDescriptionsCreateNoDevice()
    {
        LogCapture log;
        for (const char* description : {"thereisnosuchsource", "videotestsrc ! ! !", "videotestsrc ! fakesink"}) {
            QVERIFY2(!CreateDevice(description), description);
            QCOMPARE(log.Take().size(), 1);
        }
    }

    void startsAndStopsManyTimes()
    {
        const auto session = CreateSession(CreateDevice("videotestsrc is-live=true"));
        for (int i = 0; i < 200; ++i) {
            const auto observer = Start(session);
            if (i % 4 == 0)
                QVERIFY(observer->WaitFor({"started"}));
            session->Stop();
            QVERIFY(QStringList({"", "started stopped"}).contains(observer->Calls().join(' ')));
        }
        QVERIFY(WaitForEngineIdle(LIMIT));
    }

    void cameraModesAreSortedAndMerged()
    {
        const GStreamerPtr<GstCaps> caps(gst_caps_from_string(
            "video/x-raw,format=YUY2,width=640,height=480,framerate={(fraction)30/1,(fraction)15/1};"
            "video/x-raw,format=YUY2,width=1280,height=720,framerate=(fraction)10/1;"
            "video/x-raw,format=YUY2,width=640,height=480,framerate=(fraction)30000/1001;"
            "video/x-raw,format=NV12,width=640,height=480,framerate=(fraction)[1/1,25/1];"
            "video/x-raw(memory:DMABuf),format=NV12,width=1920,height=1080,framerate=(fraction)30/1;"
            "video/x-bayer,format=bggr,width=1920,height=1080,framerate=(fraction)30/1;"
            "video/x-raw,format={I420},width=[16,640],height=[16,400],framerate=(fraction)5/1;"
            "image/jpeg,width=1280,height=720,framerate=(fraction)[0/1,2147483647/1]"));
        const QString jpeg = "1280×720 MJPEG: 5/1 10/1 15/1 20/1 24/1 25/1 30000/1001 30/1 50/1 60/1";
        const QStringList raw{"1280×720 YUY2: 10/1", "640×480 YUY2: 15/1 30000/1001 30/1",
                              "640×480 NV12: 5/1 10/1 15/1 20/1 24/1 25/1", "640×360 I420: 5/1", "320×240 I420: 5/1"};
        QCOMPARE(Describe(CameraModes(caps.get(), true)), QStringList(jpeg) + raw);
        QCOMPARE(Describe(CameraModes(caps.get(), false)), raw);
        QVERIFY(CameraModes(GStreamerPtr<GstCaps>(gst_caps_new_any()).get(), true).empty());
    }

    void microphoneReportsItsLevelUntilItIsClosed()
    {
        QVERIFY(LoadGStreamer());
        std::atomic<int> peaks{0};
        std::atomic<double> newest{0};
        const auto peak = [&](double decibels) {
            newest = decibels;
            ++peaks;
        };
        const auto fail = [] { QFAIL("the microphone failed"); };
        auto microphone = std::make_unique<MicrophoneLevel>(peak, fail);
        // A tone at four fifths of full scale.
        QVERIFY(microphone->Open("audiotestsrc", std::chrono::milliseconds(20)));
        QTRY_VERIFY(peaks > 20);
        QVERIFY2(std::abs(newest - 20 * std::log10(0.8)) < 0.1, qPrintable(QString::number(newest)));
        microphone = nullptr;
        const int count = peaks;
        QVERIFY(!MicrophoneLevel(peak, fail).Open("nosuchelement", std::chrono::milliseconds(20)));
        QVERIFY(!MicrophoneLevel(peak, fail).Open("fakesink", std::chrono::milliseconds(20)));
        QCOMPARE(int(peaks), count);
    }
};

VX_TEST_MAIN(tst_GStreamerSource)
#include "tst_GStreamerSource.moc"
