#include <Host/SessionRecorder.h>
#include <Support/LogCapture.h>
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
using Proc::PixFmt;
using Support::ImageOf;
using Support::Start;

namespace {

constexpr std::chrono::seconds LIMIT(30);

// An odd size shows a plane or a stride that is wrong at the edges.
constexpr FrameFormat ODD_I420{PixFmt::I420, 322, 241};
// Whole blocks of a JPEG picture: what the encoder makes up beyond an edge comes back as noise within.
constexpr FrameFormat BLOCKS{PixFmt::I420, 320, 240};

boost::intrusive_ptr<CaptureDevice> DeviceOf(const QString& description, const FrameFormat& format = ODD_I420,
                                             const QString& detail = QString())
{
    return CreateGStreamerDevice("test", "Test", description.toStdString(),
                                 {new VideoMode("test", format, {{30000, 1001}}, detail.toStdString())});
}

bool IsNear(const QColor& color, const QColor& expected)
{
    return std::abs(color.red() - expected.red()) < 6 && std::abs(color.green() - expected.green()) < 6 &&
           std::abs(color.blue() - expected.blue()) < 6;
}

} // namespace

Q_DECLARE_METATYPE(FrameFormat)

class tst_GStreamerSource : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void formatsComeAsTheyAre_data()
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
            row(qPrintable(QString("format %1").arg(int(pixFmt))), {pixFmt, 322, 241}, "");
        row("NV12, BT.709 of full range", {PixFmt::NV12, 322, 241, ColorMatrix::BT709, ColorRange::Full},
            " ! capsfilter caps=video/x-raw,format=BGRA ! videoconvert"
            " ! capsfilter caps=video/x-raw,colorimetry=(string)1:3:5:1");
        row("I420, BT.709 of limited range", {PixFmt::I420, 322, 241, ColorMatrix::BT709, ColorRange::Limited},
            " ! capsfilter caps=video/x-raw,colorimetry=(string)bt709");
        row("another raw format", ODD_I420, "", "video/x-raw,format=Y444,width=322,height=241");
        row("JPEG", BLOCKS, " ! capsfilter caps=video/x-raw,format=BGRx ! jpegenc", "image/jpeg,width=320,height=240");
    }

    void formatsComeAsTheyAre()
    {
        QFETCH(FrameFormat, format);
        QFETCH(QString, extra);
        QFETCH(QString, detail);
        const QString source = "videotestsrc is-live=true pattern=solid-color foreground-color=0xffff0000";
        const auto session = Support::CreateSession(DeviceOf(source + extra, format, detail));
        const auto recorder = Start(session);
        QVERIFY(recorder->WaitFor({"started"}));
        const auto frame = Support::ReadFrame(*recorder->CreateOutput());
        QVERIFY(frame->IsReadable());
        if (detail.isEmpty()) {
            QCOMPARE(int(frame->GetPixelFormat()), int(format.pixFmt));
            QVERIFY(extra.isEmpty() || frame->GetFormat().matrix == format.matrix);
            QVERIFY(extra.isEmpty() || frame->GetFormat().range == format.range);
        }
        const QImage image = ImageOf(frame);
        const QRect all = image.rect();
        QCOMPARE(all.size(), QSize(format.width, format.height));
        const QColor expected = format.pixFmt == PixFmt::GRAY8 ? image.pixelColor(160, 120) : QColor(254, 0, 0);
        for (const QPoint& point : {all.topLeft(), all.topRight(), all.bottomLeft(), all.bottomRight(), all.center()})
            QVERIFY2(IsNear(image.pixelColor(point), expected), qPrintable(image.pixelColor(point).name()));

        // A frame stays what it is while the source goes on and after it has gone.
        session->Stop();
        QVERIFY(WaitForEngineIdle(LIMIT));
        QCOMPARE(ImageOf(frame), image);
    }

    void endsAreTold_data()
    {
        QTest::addColumn<QString>("description");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("no such file") << "filesrc location=missing.jpg ! jpegdec" << QStringList{"error 1"};
        QTest::newRow("refuses the mode")
            << "videotestsrc is-live=true ! capsfilter caps=video/x-raw,width=16,height=16" << QStringList{"error 1"};
        QTest::newRow("fails while running")
            << "videotestsrc is-live=true ! identity error-after=4" << QStringList{"started", "error 3"};
        QTest::newRow("runs out of pictures") << "videotestsrc num-buffers=3" << QStringList{"started", "stopped"};
    }

    void endsAreTold()
    {
        QFETCH(QString, description);
        QFETCH(QStringList, calls);
        const auto session = Support::CreateSession(DeviceOf(description));
        for (int i = 0; i < 2; ++i) {
            const auto recorder = Start(session);
            QVERIFY(recorder->WaitFor(calls));
            QVERIFY(WaitForEngineIdle(LIMIT));
            QCOMPARE(recorder->Calls(), calls);
        }
    }

    void wrongDescriptionsMakeNoDevice()
    {
        Support::LogCapture log;
        for (const char* description : {"thereisnosuchsource", "videotestsrc ! ! !", "videotestsrc ! fakesink"}) {
            QVERIFY2(!DeviceOf(description), description);
            QCOMPARE(log.Take().size(), 1);
        }
    }

    void startsAndStopsManyTimes()
    {
        const auto session = Support::CreateSession(DeviceOf("videotestsrc is-live=true"));
        for (int i = 0; i < 200; ++i) {
            const auto recorder = Start(session);
            if (i % 4 == 0)
                QVERIFY(recorder->WaitFor({"started"}));
            session->Stop();
            const QStringList calls = recorder->Calls();
            QVERIFY(calls.isEmpty() || calls == QStringList({"started", "stopped"}));
        }
        QVERIFY(WaitForEngineIdle(LIMIT));
    }

    void cameraModesComeFromTheCaps()
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
        QString modes;
        for (const auto& mode : CameraModes(caps.get(), true)) {
            modes += '\n' + QString::fromStdString(mode->GetName()) + ':';
            std::vector<Acquis::Rational> rates;
            mode->GetFrameRates(rates);
            for (const auto& rate : rates)
                modes += QString(" %1/%2").arg(rate.numerator).arg(rate.denominator);
        }
        QCOMPARE(modes, QString::fromUtf8("\n1280×720 MJPEG: 5/1 10/1 15/1 20/1 24/1 25/1 30000/1001 30/1 50/1 60/1"
                                          "\n1280×720 YUY2: 10/1"
                                          "\n640×480 YUY2: 15/1 30000/1001 30/1"
                                          "\n640×480 NV12: 5/1 10/1 15/1 20/1 24/1 25/1"
                                          "\n640×360 I420: 5/1"
                                          "\n320×240 I420: 5/1"));
        QCOMPARE(CameraModes(caps.get(), false).size(), std::size_t(5));
        QVERIFY(CameraModes(GStreamerPtr<GstCaps>(gst_caps_new_any()).get(), true).empty());
    }

    void microphoneTellsItsLevelUntilItEnds()
    {
        QVERIFY(LoadGStreamer());
        std::atomic<int> peaks{0};
        std::atomic<bool> hasFailed{false};
        std::atomic<double> newest{0};
        {
            MicrophoneLevel microphone(
                [&](double decibels) {
                    newest = decibels;
                    ++peaks;
                },
                [&] { hasFailed = true; });
            // A tone at four fifths of full scale.
            QVERIFY(microphone.Open("audiotestsrc", std::chrono::milliseconds(20)));
            QTRY_VERIFY(peaks > 20);
            QVERIFY2(std::abs(newest - 20 * std::log10(0.8)) < 0.1, qPrintable(QString::number(newest)));
        }
        const int count = peaks;
        QVERIFY(!hasFailed);
        QVERIFY(!MicrophoneLevel([](double) {}, [] {}).Open("nosuchelement", std::chrono::milliseconds(20)));
        QVERIFY(!MicrophoneLevel([](double) {}, [] {}).Open("fakesink", std::chrono::milliseconds(20)));
        QCOMPARE(peaks.load(), count);
    }
};

VX_TEST_MAIN(tst_GStreamerSource)
#include "tst_GStreamerSource.moc"
