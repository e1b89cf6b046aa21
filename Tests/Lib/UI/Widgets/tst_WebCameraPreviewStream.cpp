#include <UI/Widgets/WebCameraPreviewStream.h>

#include <UI/Widgets/VideoPreviewWidget.h>

#include <Support/EventSpy.h>
#include <Support/Frames.h>
#include <Support/LogCapture.h>
#include <Support/ScriptedEngine.h>
#include <Support/TestCase.h>

#include <thread>

using namespace Support;
using Vx::WebCameraPreviewStream;
using Vx::UI::VideoPreviewWidget;

namespace {

const QColor DEFAULT_COLOR(200, 30, 40);
const QString LOG_PREFIX("E Lib/UI/Widgets/WebCameraPreviewStream:%1 Zelkor::Vx::WebCameraPreviewStream::Impl::%2");

boost::intrusive_ptr<ScriptedReader> ReaderOf(const QColor& color)
{
    return new ScriptedReader([frame = SolidFrame({64, 48}, color)] { return frame; });
}

// A stream and its preview, on a scripted engine whose sessions deliver green frames by default.
struct Stream
{
    Stream() : preview(new VideoPreviewWidget(nullptr)), stream(new WebCameraPreviewStream(preview.get()))
    {
        preview->SetPreviewWidth(64);
        preview->SetPreviewHeight(48);
        QImage image(64, 48, QImage::Format_RGB32);
        image.fill(DEFAULT_COLOR);
        preview->SetDefaultImage(image);
        engine.onStart = [this](const auto& session) { session->ReportStarted(reader); };
    }

    void Run(int rate = 100) const
    {
        stream->SetDevice(OrdinaryDevice(rate), "only", rate);
        stream->StartStream();
    }

    QColor Color() const { return preview->grab().toImage().pixelColor(32, 24); }

    ScriptedEngine engine;
    std::unique_ptr<VideoPreviewWidget> preview;
    QPointer<WebCameraPreviewStream> stream;
    boost::intrusive_ptr<ScriptedReader> reader = ReaderOf(Qt::green);
    QSignalSpy failed{stream, &WebCameraPreviewStream::WebCameraOpenError};
};

// A frame whose conversion takes 40 ms.
class SlowFrame : public RefCounted<Proc::IDataVideo>
{
public:
    Proc::PixFmt GetPixelFormat() const override
    {
        ++conversions;
        std::this_thread::sleep_for(std::chrono::milliseconds(40));
        return Proc::PixFmt::None;
    }

    mutable std::atomic<int> conversions{0};
};

} // namespace

class tst_WebCameraPreviewStream : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void modeAndRateAreChosen()
    {
        // The rates of the modes "A", "B" and "A" after 25 Hz were requested, by default their last one.
        const auto chosen = [](const char* name, const std::vector<Acquis::Rational>& rates) {
            const Stream fixture;
            boost::intrusive_ptr<ScriptedDevice> device(new ScriptedDevice);
            for (const char* mode : {"A", "B", "A"})
                device->modes.emplace_back(new StandIn::VideoMode(mode, {}, rates));
            fixture.stream->SetDevice(device, name, 25);
            QVector<std::int64_t> chosenRates;
            for (const auto& mode : device->modes)
                chosenRates += dynamic_cast<StandIn::VideoMode&>(*mode).GetFrameRate().numerator;
            return chosenRates;
        };
        using Rates = QVector<std::int64_t>;
        QCOMPARE(chosen("B", {{15, 1}, {25, 1}, {30, 1}}), Rates({30, 25, 30}));
        QCOMPARE(chosen("unknown", {{15, 1}, {25, 1}, {30, 1}}), Rates({25, 30, 30}));
        QCOMPARE(chosen("A", {{15, 1}, {30, 1}, {0, 1}}), Rates({30, 0, 0}));
        QCOMPARE(chosen("A", {{24, 1}, {0, 0}, {30, -1}}), Rates({24, 30, 30}));
        QCOMPARE(chosen("A", {{1, 2}, {-30, 1}}), Rates({-30, -30, -30}));
    }

    void incompatibleDeviceThrowsAndRefusedSessionIsNotStarted()
    {
        Stream fixture;
        const auto device = OrdinaryDevice();
        device->deniesItsModes = true;
        QVERIFY_EXCEPTION_THROWN(fixture.stream->SetDevice(device, "only", 30), std::logic_error);
        fixture.engine.refusesSessions = true;
        fixture.Run(); // without a session
        QCOMPARE(fixture.engine.starts.load(), 0);
    }

    void settingsDialogIsThatOfTheFirstDevice()
    {
        struct Dialog : RefCounted<Acquis::IDeviceSettings>
        {
            void ShowSettingsDialog() override { ++shown; }
            int shown = 0;
        };
        Stream fixture;
        boost::intrusive_ptr<Dialog> first(new Dialog);
        fixture.engine.deviceSettings = {first, new Dialog};
        fixture.Run();
        QVERIFY(fixture.stream->IsWebcameraSettingsAvailable());
        fixture.stream->ShowCurrentDeviceSettings();
        fixture.stream->SetDevice(nullptr, "only", 30);
        QVERIFY(!fixture.stream->IsWebcameraSettingsAvailable());
        fixture.stream->ShowCurrentDeviceSettings();
        QCOMPARE(first->shown, 1);
    }

    void streamRetriesRunsAndStops()
    {
        Stream fixture;
        ScriptedEngine::Session running;
        QElapsedTimer timer;
        fixture.engine.onStart = [&](const auto& session) {
            running = session;
            timer.start();
            fixture.engine.OnThread([&, session] {
                fixture.engine.starts < 3 ? session->ReportError(1) : session->ReportStarted(fixture.reader);
            });
        };
        fixture.Run();
        // The schedule is absolute: never more reads than periods, and late ones are made up for.
        QTRY_VERIFY(fixture.reader->reads >= 20);
        QVERIFY(timer.elapsed() >= 20 * 10);
        QCOMPARE(fixture.Color(), QColor(Qt::green));
        QCOMPARE(fixture.reader->outputName, std::string("WebCameraPreview"));
        QCOMPARE(fixture.reader->shift->MapTime(-12345), std::int64_t(-12345));
        running->ReportStopped(); // the session can be started again
        QCOMPARE(fixture.Color(), DEFAULT_COLOR);
        fixture.stream->StartStream();
        QTRY_COMPARE(fixture.Color(), QColor(Qt::green));
        fixture.stream->StopStream();
        const int reads = fixture.reader->reads;
        QCOMPARE(fixture.Color(), DEFAULT_COLOR);
        QCOMPARE(fixture.engine.starts.load(), 4);
        QCOMPARE(fixture.reader->reads.load(), reads);
        QCOMPARE(fixture.failed.size(), 0);
        running = nullptr;
        fixture.engine.Join();
        QCOMPARE(fixture.engine.alive.load(), 0);
    }

    void sevenErrorsEmitOneSignal()
    {
        LogCapture log;
        Stream fixture;
        const EventSwallower swallower;
        connect(fixture.stream, &WebCameraPreviewStream::WebCameraOpenError,
                [] { QCOMPARE(QThread::currentThread(), qApp->thread()); });
        fixture.engine.onStart = [&](const auto& session) {
            session->ReportError(5);
            for (int i = 0; i < 3; ++i)
                fixture.engine.OnThread([=] { session->ReportError(5); }); // for the same session
        };
        fixture.stream->SetDevice(OrdinaryDevice(), "only", 100);
        for (int round = 1; round <= 2; ++round) {
            QElapsedTimer timer;
            timer.start();
            fixture.stream->StartStream();
            QTRY_COMPARE_WITH_TIMEOUT(fixture.failed.size(), round, 20000);
            QVERIFY(timer.elapsed() >= 7 * 200);
            fixture.engine.Join();
            QCOMPARE(fixture.engine.starts.load(), 7 * round);
            const QString line = LOG_PREFIX.arg("212", "handleError: Cannot create preview stream. Error code: 5");
            QCOMPARE(log.Take().count(line), 7 * 4);
        }
    }

    // Uncaught, an exception would end the program in the event loop or on a thread.
    void exceptionOfTheEngineFailsTheStart_data()
    {
        QTest::addColumn<int>("times");
        QTest::addColumn<QString>("line");
        QTest::newRow("start") << 6 << LOG_PREFIX.arg("158", "StartSession: start");
        QTest::newRow("output") << 7 << LOG_PREFIX.arg("196", "handleStarted: output");
        QTest::newRow("frame") << 7 << LOG_PREFIX.arg("219", "HandleBrokenPump: frame");
    }

    void exceptionOfTheEngineFailsTheStart()
    {
        QFETCH(int, times);
        QFETCH(QString, line);
        const QString thrower = QTest::currentDataTag();
        LogCapture log;
        Stream fixture;
        const auto throwIn = [&](const char* place) {
            if (thrower == place)
                throw std::runtime_error(place);
        };
        fixture.reader.reset(new ScriptedReader([&] {
            throwIn("frame");
            return nullptr;
        }));
        fixture.reader->onOutput = [&] { throwIn("output"); };
        fixture.engine.onStart = [&](const auto& session) {
            if (fixture.engine.starts > 1)
                throwIn("start");
            thrower == "start" ? session->ReportError(1) : session->ReportStarted(fixture.reader);
        };
        fixture.engine.onStop = [](const auto&) { throw std::runtime_error("stop"); };
        fixture.Run();
        QTRY_COMPARE_WITH_TIMEOUT(fixture.failed.size(), 1, 20000);
        QCOMPARE(log.Take().count(line), times);
        fixture.preview.reset();
        QCOMPARE(log.Take(), QStringList(LOG_PREFIX.arg("133", "Stop: stop")));
    }

    void frameIsConvertedOnceUntilThePreviewChanges()
    {
        Stream fixture;
        const boost::intrusive_ptr<SlowFrame> frame(new SlowFrame);
        fixture.reader.reset(new ScriptedReader([=] { return frame; }));
        fixture.Run();
        const auto conversionsAfterTenReads = [&] {
            const int reads = fixture.reader->reads;
            [&] { QTRY_VERIFY(fixture.reader->reads >= reads + 10); }();
            return frame->conversions.load();
        };
        const int once = conversionsAfterTenReads();
        QCOMPARE(conversionsAfterTenReads(), once);
        fixture.preview->SetPreviewWidth(32);
        QCOMPARE(conversionsAfterTenReads(), once + 1);
        fixture.preview->ResetPreview();
        QCOMPARE(conversionsAfterTenReads(), once + 2);
    }

    void stopCancelsARetry()
    {
        Stream fixture;
        fixture.engine.onStart = [&](const auto& session) { session->ReportError(1); };
        fixture.Run();
        fixture.stream->StopStream();
        fixture.Run();
        fixture.stream->SetDevice(nullptr, "only", 100);
        QTest::qWait(300); // longer than the delay of a retry
        QCOMPARE(fixture.engine.starts.load(), 2);
    }

    void replacedSessionIsIgnored()
    {
        Stream fixture;
        std::vector<ScriptedEngine::Session> sessions;
        const auto stale = ReaderOf(Qt::blue);
        const auto reportLate = [&] {
            sessions[0]->ReportStarted(stale);
            sessions[0]->ReportError(3);
            sessions[0]->ReportStopped();
        };
        fixture.engine.onStop = [](const auto&) {};
        fixture.engine.onStart = [&](const auto& session) { sessions.push_back(session); };
        fixture.Run();
        fixture.Run();
        sessions[1]->ReportStarted(fixture.reader);
        reportLate();
        const int reads = fixture.reader->reads;
        QTRY_VERIFY(fixture.reader->reads > reads + 25); // longer than the delay of a retry
        QCOMPARE(fixture.engine.starts.load(), 2);
        QCOMPARE(fixture.Color(), QColor(Qt::green));
        fixture.preview.reset();
        reportLate();
        QCOMPARE(stale->reads.load(), 0);
    }

    // Destruction of either object waits for one conversion at most.
    void nothingIsReadAfterDestruction()
    {
        for (int i = 0; i < 12; ++i) {
            Stream fixture;
            const boost::intrusive_ptr<SlowFrame> frames[] = {new SlowFrame, new SlowFrame};
            fixture.reader.reset(new ScriptedReader([&frames, n = 0]() mutable { return frames[++n % 2]; }));
            fixture.Run(1000);
            const auto conversions = [&] { return frames[0]->conversions + frames[1]->conversions; };
            QTRY_VERIFY(conversions() >= 3);
            const int before = conversions();
            i % 2 ? delete fixture.stream : fixture.preview.reset();
            QVERIFY(conversions() <= before + 1);
            const int reads = fixture.reader->reads;
            QTest::qWait(5); // several periods
            QCOMPARE(fixture.reader->reads.load(), reads);
        }
    }

    void startAndStopMayRace()
    {
        Stream fixture;
        fixture.engine.onStart = [&](const auto& session) {
            fixture.engine.OnThread([&, session] {
                session->ReportStarted(fixture.reader);
                fixture.engine.starts % 2 ? session->ReportError(1) : session->ReportStopped();
            });
        };
        fixture.preview->show();
        FLAGS_minloglevel = google::GLOG_FATAL;
        for (int i = 0; i < 1000; ++i) {
            fixture.stream->SetDevice(OrdinaryDevice(1000), "only", 1000);
            std::thread starter([&] { fixture.stream->StartStream(); });
            std::thread stopper([&] { fixture.stream->StopStream(); });
            QCoreApplication::processEvents();
            starter.join();
            stopper.join();
            if (i % 50 == 0)
                fixture.engine.Join();
        }
        FLAGS_minloglevel = google::GLOG_INFO;
        fixture.engine.Join();
        fixture.stream->StopStream();
        QCOMPARE(fixture.engine.alive.load(), 0);
        QCOMPARE(fixture.Color(), DEFAULT_COLOR);
    }
};

VX_TEST_MAIN(tst_WebCameraPreviewStream)
#include "tst_WebCameraPreviewStream.moc"
