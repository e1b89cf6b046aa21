#include <Host/SessionRecorder.h>
#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <Acquis/GStreamer/CameraModes.h>

#include <Zelkor/StandIn/CaptureEngine.h>
#include <Zelkor/StandIn/GStreamerDevice.h>

#include <QElapsedTimer>

using namespace Zelkor;
using namespace Zelkor::StandIn;
using Proc::PixFmt;
using Support::CreateSession;
using Support::ImageOf;
using Support::ReadFrame;
using Support::SessionRecorder;

namespace {

constexpr std::chrono::seconds LIMIT(30);

// An odd size shows a plane or a stride that is wrong at the edges.
constexpr QSize ODD_SIZE(322, 241);
// Whole blocks of a JPEG picture: what the encoder makes up beyond an edge comes back as noise within.
constexpr QSize BLOCK_SIZE(320, 240);

boost::intrusive_ptr<CaptureDevice> DeviceOf(const std::string& description, PixFmt pixFmt = PixFmt::I420,
                                             const std::string& detail = std::string(), const QSize& size = ODD_SIZE)
{
    const FrameFormat format{pixFmt, size.width(), size.height()};
    return CreateGStreamerDevice("test", "Test", description, {new VideoMode("test", format, {{30000, 1001}}, detail)});
}

boost::intrusive_ptr<Acquis::ICaptureSession> SessionOf(const std::string& description, PixFmt pixFmt = PixFmt::I420,
                                                        const std::string& detail = std::string(),
                                                        const QSize& size = ODD_SIZE)
{
    const auto device = DeviceOf(description, pixFmt, detail, size);
    return CreateSession(device, device->GetModes()[0]);
}

bool IsNear(const QColor& color, const QColor& expected)
{
    return std::abs(color.red() - expected.red()) < 6 && std::abs(color.green() - expected.green()) < 6 &&
           std::abs(color.blue() - expected.blue()) < 6;
}

} // namespace

class tst_GStreamerSource : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void formatsComeAsTheyAre_data()
    {
        QTest::addColumn<int>("pixFmt");
        QTest::addColumn<QString>("extra");
        QTest::addColumn<QString>("detail");
        QTest::addColumn<int>("came");
        const auto add = [](const char* name, PixFmt pixFmt, const char* extra = "") {
            QTest::newRow(name) << int(pixFmt) << extra << QString() << int(pixFmt);
        };
        add("I420", PixFmt::I420);
        add("YV12", PixFmt::YV12);
        add("NV12", PixFmt::NV12);
        add("NV21", PixFmt::NV21);
        add("YUY2", PixFmt::YUY2);
        add("UYVY", PixFmt::UYVY);
        add("RGB", PixFmt::RGB24);
        add("BGR", PixFmt::BGR24);
        add("RGBA", PixFmt::RGBA);
        add("BGRA", PixFmt::BGRA);
        add("ARGB", PixFmt::ARGB);
        add("ABGR", PixFmt::ABGR);
        add("GRAY8", PixFmt::GRAY8);
        add("BGRx", PixFmt::BGRX);
        const char* full709 = " ! capsfilter caps=video/x-raw,format=BGRA ! videoconvert"
                              " ! capsfilter caps=video/x-raw,colorimetry=(string)1:3:5:1";
        const char* limited709 = " ! capsfilter caps=video/x-raw,colorimetry=(string)bt709";
        add("NV12, BT.709 of full range", PixFmt::NV12, full709);
        add("I420, BT.709 of limited range", PixFmt::I420, limited709);
        QTest::newRow("another raw format") << int(PixFmt::I420) << ""
                                            << "video/x-raw,format=Y444,width=322,height=241" << -2;
        QTest::newRow("JPEG") << int(PixFmt::I420) << " ! capsfilter caps=video/x-raw,format=BGRx ! jpegenc"
                              << "image/jpeg,width=320,height=240" << -2;
    }

    void formatsComeAsTheyAre()
    {
        QFETCH(int, pixFmt);
        QFETCH(QString, extra);
        QFETCH(QString, detail);
        QFETCH(int, came);
        const QSize size = detail.startsWith("image/jpeg") ? BLOCK_SIZE : ODD_SIZE;
        const std::string source = "videotestsrc is-live=true pattern=solid-color foreground-color=0xffff0000";
        const auto session = SessionOf(source + extra.toStdString(), PixFmt(pixFmt), detail.toStdString(), size);
        const auto recorder = std::make_shared<SessionRecorder>();
        session->Start(recorder);
        QVERIFY(recorder->WaitFor({"started"}));
        const auto frame = ReadFrame(*recorder->CreateOutput());
        QVERIFY(frame->IsReadable());
        QCOMPARE(QSize(frame->GetFormat().width, frame->GetFormat().height), size);
        if (came >= -1)
            QCOMPARE(int(frame->GetPixelFormat()), came);
        if (!extra.isEmpty() && detail.isEmpty()) {
            QVERIFY(frame->GetFormat().matrix == ColorMatrix::BT709);
            QCOMPARE(frame->GetFormat().range == ColorRange::Full, extra.contains("1:3:5:1"));
        }
        const QImage image = ImageOf(frame);
        const QColor expected = pixFmt == int(PixFmt::GRAY8) ? image.pixelColor(160, 120) : QColor(254, 0, 0);
        const QRect all = image.rect();
        for (const QPoint& point : {all.topLeft(), all.topRight(), all.bottomLeft(), all.bottomRight(), all.center()}) {
            const QColor color = image.pixelColor(point);
            QVERIFY2(IsNear(color, expected), qPrintable(color.name()));
        }

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
        const auto session = SessionOf(description.toStdString());
        for (int i = 0; i < 2; ++i) {
            const auto recorder = std::make_shared<SessionRecorder>();
            session->Start(recorder);
            QVERIFY(recorder->WaitFor(calls));
            QVERIFY(WaitForEngineIdle(LIMIT));
            QCOMPARE(recorder->Calls(), calls);
        }
    }

    void wrongDescriptionsMakeNoDevice_data()
    {
        QTest::addColumn<QString>("description");
        QTest::newRow("no such element") << "thereisnosuchsource";
        QTest::newRow("not a pipeline") << "videotestsrc ! ! !";
        QTest::newRow("nothing comes out") << "videotestsrc ! fakesink";
    }

    void wrongDescriptionsMakeNoDevice()
    {
        QFETCH(QString, description);
        Support::LogCapture log;
        QVERIFY(!DeviceOf(description.toStdString()));
        QCOMPARE(log.Take().size(), 1);
    }

    void startsAndStopsManyTimes()
    {
        const auto session = SessionOf("videotestsrc is-live=true");
        const auto recorder = std::make_shared<SessionRecorder>();
        for (int i = 0; i < 200; ++i) {
            const int before = recorder->Calls().size();
            session->Start(recorder);
            if (i % 4 == 0)
                QTRY_VERIFY_WITH_TIMEOUT(recorder->Calls().size() > before, 20000);
            QElapsedTimer timer;
            timer.start();
            session->Stop();
            QVERIFY(timer.elapsed() < 1000);
        }
        QVERIFY(WaitForEngineIdle(LIMIT));
        const QStringList calls = recorder->Calls();
        QVERIFY(calls.size() >= 100);
        QVERIFY(!calls.join(' ').contains("error"));
        QCOMPARE(calls.count("started"), calls.count("stopped"));
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
        QStringList modes;
        for (const auto& mode : CameraModes(caps.get(), true)) {
            QString line = QString::fromStdString(mode->GetName()) + ':';
            std::vector<Acquis::Rational> rates;
            mode->GetFrameRates(rates);
            for (const auto& rate : rates)
                line += QString(" %1/%2").arg(rate.numerator).arg(rate.denominator);
            modes += line;
        }
        const QStringList expected{QString::fromUtf8("1280×720 MJPEG: 5/1 10/1 15/1 20/1 24/1 25/1 30000/1001 30/1 "
                                                     "50/1 60/1"),
                                   QString::fromUtf8("1280×720 YUY2: 10/1"),
                                   QString::fromUtf8("640×480 YUY2: 15/1 30000/1001 30/1"),
                                   QString::fromUtf8("640×480 NV12: 5/1 10/1 15/1 20/1 24/1 25/1"),
                                   QString::fromUtf8("640×360 I420: 5/1"),
                                   QString::fromUtf8("320×240 I420: 5/1")};
        QCOMPARE(modes, expected);
        QCOMPARE(CameraModes(caps.get(), false).size(), std::size_t(5));
        QVERIFY(CameraModes(GStreamerPtr<GstCaps>(gst_caps_new_any()).get(), true).empty());
    }
};

VX_TEST_MAIN(tst_GStreamerSource)
#include "tst_GStreamerSource.moc"
