#include <UI/Widgets/WebCameraPreviewStream.h>

#include <UI/Widgets/VideoPreviewWidget.h>

#include <Support/EventSwallower.h>
#include <Support/Frames.h>
#include <Support/LogCapture.h>
#include <Support/ScriptedEngine.h>
#include <Support/TestCase.h>

#include <QProcess>
#include <QSemaphore>
#include <QSignalSpy>

#include <cmath>

using namespace Support;
using Vx::WebCameraPreviewStream;
using Vx::UI::VideoPreviewWidget;

namespace {

const QColor PLACEHOLDER(200, 30, 40);

boost::intrusive_ptr<ScriptedReader> ReaderOf(const QColor& color)
{
    return new ScriptedReader([frame = SolidFrame({64, 48}, color)] { return frame; });
}

// A scripted engine, a shown preview with a red default image, a stream on it, and a reader of green frames.
struct Scene
{
    Scene() : preview(new VideoPreviewWidget(nullptr)), stream(new WebCameraPreviewStream(preview.get()))
    {
        preview->SetPreviewWidth(64);
        preview->SetPreviewHeight(48);
        QImage image(64, 48, QImage::Format_RGB32);
        image.fill(PLACEHOLDER);
        preview->SetDefaultImage(image);
        preview->show();
    }

    void SetDevice(int rate = 100) const { stream->SetDevice(OrdinaryDevice(rate), "only", rate); }

    void Run(int rate = 100) const
    {
        SetDevice(rate);
        stream->StartStream();
    }

    // Each start is answered on a thread of the engine.
    void AnswerWith(std::function<void(const ScriptedEngine::Session&)> answer)
    {
        engine.onStart = [=](const auto& session) { engine.OnThread([=] { answer(session); }); };
    }

    QColor Centre() const { return preview->grab().toImage().pixelColor(32, 24); }

    ScriptedEngine engine;
    std::unique_ptr<VideoPreviewWidget> preview;
    QPointer<WebCameraPreviewStream> stream;
    boost::intrusive_ptr<ScriptedReader> reader = ReaderOf(Qt::green);
};

const QString ERROR_LINE("E Lib/UI/Widgets/WebCameraPreviewStream:212"
                         " Zelkor::Vx::WebCameraPreviewStream::Impl::handleError:"
                         " Cannot create preview stream. Error code: %1");

// A frame whose conversion takes a while; counts how often the preview asks for it.
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

constexpr char LEAK_OPTION[] = "--leak";

// Leaks a preview that runs, and gives its thread time to use what is gone at the end of the program.
void LeakRunningPreview()
{
    static auto* engine = new ScriptedEngine;
    static auto* preview = new VideoPreviewWidget(nullptr);
    static auto* stream = new WebCameraPreviewStream(preview);
    preview->SetPreviewWidth(64);
    preview->SetPreviewHeight(48);
    const boost::intrusive_ptr<ScriptedReader> reader(new ScriptedReader([] { return GreyFrame({64, 48}, 100); }));
    engine->onStart = [=](const auto& session) { session->ReportStarted(reader); };
    stream->SetDevice(OrdinaryDevice(1000), "only", 1000);
    stream->StartStream();
    QTRY_VERIFY(reader->reads >= 5);
    std::atexit([] { std::this_thread::sleep_for(std::chrono::milliseconds(100)); });
}

} // namespace

class tst_WebCameraPreviewStream : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void choosesModeAndRate()
    {
        using Rates = std::vector<Acquis::Rational>;
        const Rates usual{{15, 1}, {25, 1}, {30000, 1001}};
        // What is asked for and the rates of each mode; then the mode and the rate that are chosen.
        using Row = std::tuple<QString, QString, double, Rates, int, double>;
        const std::vector<Row> rows{
            {"by name and rate", "B", 25.0, usual, 1, 25.0},
            {"two of a name: the first", "A", 15.0, usual, 0, 15.0},
            {"unknown name: the first; inexact rate: the last", "C", 30.0, usual, 0, 30000 / 1001.0},
            {"bad: not a number: the last", "A", std::nan(""), usual, 0, 30000 / 1001.0},
            {"bad: zero denominator is passed over", "A", 0.0, {{24, 1}, {0, 0}, {30, -1}}, 0, 24.0},
            {"bad: below one is passed over", "A", 0.5, {{10, 1}, {1, 2}}, 0, 10.0},
            {"bad: nothing usable", "A", 0.5, {{1, 2}, {0, 0}, {-30, 1}}, -1, 0.0},
            {"bad: no rates", "A", 30.0, {}, -1, 0.0},
        };
        for (const auto& [description, name, rate, rates, mode, chosen] : rows) {
            InRow(description);
            LogCapture log;
            Scene scene;
            boost::intrusive_ptr<ScriptedDevice> device(new ScriptedDevice);
            for (const char* modeName : {"A", "B", "A"})
                device->modes.emplace_back(new ScriptedMode(modeName, rates));
            scene.stream->SetDevice(device, name, rate);
            for (int i = 0; i < 3; ++i) {
                const Acquis::Rational& set = dynamic_cast<const ScriptedMode&>(*device->modes[i]).chosen;
                QCOMPARE(double(set.numerator) / set.denominator, i == mode ? chosen : -1.0);
            }
            QCOMPARE(log.Lines().size(), description.startsWith("bad") ? 1 : 0);
            QCOMPARE(scene.engine.starts.load(), 0);
            scene.stream->StartStream();
            QCOMPARE(scene.engine.starts.load(), mode < 0 ? 0 : 1);
        }
    }

    void devicesThatCannotBeUsed()
    {
        LogCapture log;
        Scene scene;
        scene.stream->SetDevice(new ScriptedDevice, "A", 30); // no modes at all
        QCOMPARE(log.Take().size(), 1);
        const auto device = OrdinaryDevice(); // one whose modes do not belong to it
        device->deniesItsModes = true;
        QVERIFY_EXCEPTION_THROWN(scene.stream->SetDevice(device, "only", 30), std::logic_error);
        scene.engine.refusesSessions = true;
        scene.Run();
        scene.stream->SetDevice(nullptr, "only", 30);
        scene.stream->StartStream();
        QCOMPARE(scene.engine.starts.load(), 0);
        QCOMPARE(log.Take(), QStringList());
    }

    void settingsDialogOfTheDevice()
    {
        struct Dialog : RefCounted<Acquis::IDeviceSettings>
        {
            void ShowSettingsDialog() override { ++shown; }
            int shown = 0;
        };
        Scene scene;
        boost::intrusive_ptr<Dialog> first(new Dialog);
        scene.engine.deviceSettings = {first, new Dialog};
        scene.SetDevice();
        scene.stream->ShowCurrentDeviceSettings();
        QVERIFY(scene.stream->IsWebcameraSettingsAvailable() && first->shown == 1);
        scene.stream->SetDevice(nullptr, "only", 30);
        scene.stream->ShowCurrentDeviceSettings();
        QVERIFY(!scene.stream->IsWebcameraSettingsAvailable() && first->shown == 1);
    }

    void pictureRunsAfterTwoErrorsStopsAndRunsAgain()
    {
        Scene scene;
        QSignalSpy failed(scene.stream, &WebCameraPreviewStream::WebCameraOpenError);
        ScriptedEngine::Session running;
        QElapsedTimer timer;
        scene.AnswerWith([&](const auto& session) {
            running = session;
            timer.start();
            if (scene.engine.starts < 3)
                session->ReportError(1);
            else
                session->ReportStarted(scene.reader);
        });
        scene.stream->StartStream();
        scene.Run();
        QTRY_COMPARE(scene.Centre(), QColor(Qt::green));
        // The schedule is absolute: never more ticks than periods, and late ones are made up for.
        QTRY_VERIFY(scene.reader->reads >= 20);
        QVERIFY(timer.elapsed() >= 20 * 10);
        QCOMPARE(scene.reader->outputName, std::string("WebCameraPreview"));
        QCOMPARE(scene.reader->shift->MapTime(-12345), std::int64_t(-12345));

        // The session ends by itself: it is kept and can be started again.
        running->ReportStopped();
        QCOMPARE(scene.Centre(), PLACEHOLDER);
        scene.stream->StartStream();
        QTRY_COMPARE(scene.Centre(), QColor(Qt::green));

        scene.stream->StopStream();
        const int reads = scene.reader->reads;
        scene.stream->StartStream();
        QCOMPARE(scene.Centre(), PLACEHOLDER);
        QVERIFY(scene.engine.starts == 4 && scene.engine.stops == 1 && scene.reader->reads == reads);
        QCOMPARE(failed.size(), 0);
        running = nullptr;
        QCOMPARE(scene.engine.alive.load(), 0);
    }

    void sevenErrorsGiveOneSignal()
    {
        // Threads that report, none for inside the start, and how often each does.
        for (const auto& [threads, errors] : {std::pair(0, 1), std::pair(1, 1), std::pair(4, 25)}) {
            InRow(QString("%1 threads").arg(threads));
            LogCapture log;
            Scene scene;
            const EventSwallower swallower;
            QSignalSpy failed(scene.stream, &WebCameraPreviewStream::WebCameraOpenError);
            const auto isOnGuiThread = [] { QCOMPARE(QThread::currentThread(), qApp->thread()); };
            connect(scene.stream, &WebCameraPreviewStream::WebCameraOpenError, isOnGuiThread);
            scene.engine.onStart = [&, threads = threads, errors = errors](const auto& session) {
                const auto report = [=] {
                    for (int i = 0; i < errors; ++i)
                        session->ReportError(5);
                };
                if (threads == 0)
                    report();
                for (int i = 0; i < threads; ++i)
                    scene.engine.OnThread(report);
            };
            scene.SetDevice();
            for (int round = 1; round <= 2; ++round) {
                QElapsedTimer timer;
                timer.start();
                scene.stream->StartStream();
                QTRY_COMPARE_WITH_TIMEOUT(failed.size(), round, 20000);
                QVERIFY(timer.elapsed() >= 7 * 200);
                scene.engine.Join();
                QCOMPARE(scene.engine.starts.load(), 7 * round);
                const QVector<QString> lines(7 * qMax(1, threads) * errors, ERROR_LINE.arg(5));
                QCOMPARE(log.Take(), QStringList(lines.toList()));
            }
        }
    }

    // In the event loop or on a thread, an exception would end the program.
    void exceptionOfTheEngineFailsTheStart_data()
    {
        QTest::addColumn<int>("times");
        QTest::addColumn<QString>("line");
        QTest::newRow("settings") << 6 << "150 %1BuildSession: Incompatible device and settings";
        QTest::newRow("start") << 6 << "158 %1StartSession: start";
        QTest::newRow("output") << 7 << "196 %1handleStarted: output";
        QTest::newRow("frame") << 7 << "219 %1HandleBrokenPump: frame";
    }

    void exceptionOfTheEngineFailsTheStart()
    {
        QFETCH(int, times);
        QFETCH(QString, line);
        const QString thrower = QTest::currentDataTag();
        LogCapture log;
        Scene scene;
        QSignalSpy failed(scene.stream, &WebCameraPreviewStream::WebCameraOpenError);
        const auto device = OrdinaryDevice();
        const auto throwIf = [&](const char* place) {
            if (thrower == place)
                throw std::runtime_error(place);
        };
        scene.reader.reset(new ScriptedReader([&] {
            throwIf("frame");
            return nullptr;
        }));
        scene.reader->onOutput = [&] { throwIf("output"); };
        scene.engine.onStart = [&](const auto& session) {
            device->deniesItsModes = thrower == "settings";
            if (scene.engine.starts > 1)
                throwIf("start");
            if (thrower == "start" || thrower == "settings")
                session->ReportError(1);
            else
                session->ReportStarted(scene.reader);
        };
        scene.stream->SetDevice(device, "only", 100);
        scene.stream->StartStream();
        QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, 20000);
        const QString text =
            "E Lib/UI/Widgets/WebCameraPreviewStream:" + line.arg("Zelkor::Vx::WebCameraPreviewStream::Impl::");
        QCOMPARE(log.Lines().count(text), times);
    }

    void exceptionOfAStopIsLogged()
    {
        LogCapture log;
        Scene scene;
        scene.engine.onStop = [](const auto&) { throw std::runtime_error("stop"); };
        scene.Run();
        scene.preview.reset();
        QCOMPARE(log.Lines(), QStringList("E Lib/UI/Widgets/WebCameraPreviewStream:133"
                                          " Zelkor::Vx::WebCameraPreviewStream::Impl::Stop: stop"));
    }

    void frameIsConvertedOnceUntilThePreviewChanges()
    {
        LogCapture log;
        Scene scene;
        const boost::intrusive_ptr<SlowFrame> frame(new SlowFrame);
        scene.reader.reset(new ScriptedReader([=] { return frame; }));
        scene.engine.onStart = [&](const auto& session) { session->ReportStarted(scene.reader); };
        scene.Run();
        const auto conversionsAfterSomeReads = [&] {
            const int reads = scene.reader->reads;
            return QTest::qWaitFor([&] { return scene.reader->reads >= reads + 10; }) ? frame->conversions.load() : -1;
        };
        const int once = conversionsAfterSomeReads();
        QVERIFY(once > 0);
        QCOMPARE(conversionsAfterSomeReads(), once);
        scene.preview->SetPreviewWidth(32);
        QCOMPARE(conversionsAfterSomeReads(), once + 1);
        scene.preview->ResetPreview();
        QCOMPARE(conversionsAfterSomeReads(), once + 2);
        scene.stream->StopStream();
        scene.reader = nullptr;
        QCOMPARE(frame->GetRefCount(), 1);
    }

    // The retries count also where there is no session any more. A slot of the signal may delete the preview.
    void givesUpWithoutASession()
    {
        Scene scene;
        scene.engine.onStart = [&](const auto& session) {
            session->ReportError(1);
            scene.engine.refusesSessions = true;
        };
        connect(scene.stream, &WebCameraPreviewStream::WebCameraOpenError, qApp, [&] { scene.preview.reset(); });
        scene.Run();
        QTRY_VERIFY_WITH_TIMEOUT(!scene.preview, 20000);
        QVERIFY(scene.engine.starts == 1 && scene.engine.alive == 0);
    }

    // What the application stopped does not start again. A second stream, left alone, tells when all retries would have
    // come.
    void stopCancelsARetry()
    {
        for (const bool byStop : {true, false}) {
            Scene scene;
            auto* other = new WebCameraPreviewStream(scene.preview.get());
            QSignalSpy failed(other, &WebCameraPreviewStream::WebCameraOpenError);
            scene.engine.onStart = [&](const auto& session) { session->ReportError(1); };
            other->SetDevice(OrdinaryDevice(), "only", 100);
            scene.Run();
            byStop ? scene.stream->StopStream() : scene.SetDevice();
            other->StartStream();
            QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, 20000);
            QCOMPARE(scene.engine.starts.load(), 1 + 7);
        }
    }

    void lateCallsOfAReplacedSessionTouchNothing()
    {
        LogCapture log;
        Scene scene;
        std::vector<ScriptedEngine::Session> sessions;
        const auto stale = ReaderOf(Qt::blue);
        const auto reportLate = [&](int index) {
            sessions[index]->ReportStarted(stale);
            sessions[index]->ReportError(3);
            sessions[index]->ReportStopped();
        };
        scene.engine.onStop = [](const auto&) {};
        scene.engine.onStart = [&](const auto& session) { sessions.push_back(session); };
        scene.Run();
        scene.Run();
        sessions[0]->ReportStarted(stale);
        sessions[1]->ReportStarted(scene.reader);
        reportLate(0);
        const int reads = scene.reader->reads;
        QTRY_VERIFY(scene.reader->reads > reads + 25); // beyond the time of a retry
        QCOMPARE(scene.engine.starts.load(), 2);
        QCOMPARE(scene.Centre(), QColor(Qt::green));
        QCOMPARE(log.Lines(), QStringList(ERROR_LINE.arg(3)));

        scene.preview.reset();
        reportLate(0);
        reportLate(1);
        QCOMPARE(stale->reads.load(), 0);
    }

    void destroyedWhileRunning()
    {
        for (const QString what : {"preview", "stream", "preview without its stream", "preview, an error is pending"}) {
            for (int i = 0; i < 20; ++i) {
                InRow(what);
                Scene scene;
                const EventSwallower swallower;
                const auto reader = scene.reader;
                scene.AnswerWith([=](const auto& session) {
                    session->ReportStarted(reader);
                    if (what.contains("error"))
                        session->ReportError(1);
                });
                scene.Run(1000);
                QTRY_VERIFY(reader->reads > i % 3);
                if (what.contains("without"))
                    scene.stream->setParent(nullptr);
                if (what == "stream")
                    delete scene.stream;
                else
                    scene.preview.reset();
                const int reads = reader->reads;
                if (scene.stream) { // it lives on, and has nothing to show on
                    scene.stream->StartStream();
                    scene.Run();
                    scene.stream->StopStream();
                }
                delete scene.stream;
                scene.engine.Join();
                QCOMPARE(reader->reads.load(), reads);
            }
        }
    }

    void destructionWaitsForOneConversionAtMost_data()
    {
        QTest::addColumn<bool>("ofStream");
        QTest::newRow("preview") << false;
        QTest::newRow("stream") << true;
    }

    void destructionWaitsForOneConversionAtMost()
    {
        QFETCH(bool, ofStream);
        LogCapture log;
        for (int i = 0; i < 12; ++i) {
            Scene scene;
            const boost::intrusive_ptr<SlowFrame> frames[] = {new SlowFrame, new SlowFrame};
            const boost::intrusive_ptr<ScriptedReader> reader(
                new ScriptedReader([&frames, n = 0]() mutable { return frames[++n % 2]; }));
            scene.engine.onStart = [&](const auto& session) { session->ReportStarted(reader); };
            scene.Run(1000);
            QTRY_VERIFY(frames[0]->conversions + frames[1]->conversions >= 3);
            const int before = frames[0]->conversions + frames[1]->conversions;
            if (ofStream)
                delete scene.stream;
            else
                scene.preview.reset();
            QVERIFY(frames[0]->conversions + frames[1]->conversions <= before + 1);
        }
    }

    // The output of an engine may hold the camera.
    void retryReleasesTheOldOutputBeforeItStarts()
    {
        Scene scene;
        int readersAtStart = -1;
        scene.engine.onStart = [&](const auto& session) {
            if (scene.engine.starts == 1) {
                session->ReportStarted(scene.reader);
                session->ReportError(1);
            } else {
                readersAtStart = scene.reader->GetRefCount();
            }
        };
        scene.Run();
        QTRY_COMPARE(scene.engine.starts.load(), 2);
        QCOMPARE(readersAtStart, 1);
    }

    // It outlives the application object, and no thread may feed it then.
    void leakedPreviewLetsTheProgramEnd()
    {
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(QCoreApplication::applicationFilePath(), {LEAK_OPTION});
        QVERIFY(program.waitForFinished(60000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
    }

    void startAndStopFromTwoThreads()
    {
        Scene scene;
        scene.AnswerWith([&](const auto& session) {
            const int turn = scene.engine.starts % 3;
            if (turn == 0)
                session->ReportError(1);
            else
                session->ReportStarted(scene.reader);
            if (turn == 2)
                session->ReportStopped();
        });
        FLAGS_minloglevel = google::GLOG_FATAL;
        for (int i = 0; i < 1000; ++i) {
            scene.SetDevice(1000);
            std::thread starter([&] { scene.stream->StartStream(); });
            std::thread stopper([&] { scene.stream->StopStream(); });
            QCoreApplication::processEvents();
            starter.join();
            stopper.join();
            if (i % 50 == 0)
                scene.engine.Join();
        }
        FLAGS_minloglevel = google::GLOG_INFO;
        scene.engine.Join();
        scene.stream->StopStream();
        const int reads = scene.reader->reads;
        QCoreApplication::processEvents();
        QVERIFY(scene.engine.alive == 0 && scene.reader->reads == reads);
        QCOMPARE(scene.Centre(), PLACEHOLDER);
    }

    void stopFreesAStartThatHangs()
    {
        Scene scene;
        QSemaphore hanging;
        QSemaphore stopped;
        scene.engine.onStart = [&](const auto&) {
            hanging.release();
            stopped.acquire();
        };
        scene.engine.onStop = [&](const auto&) { stopped.release(); };
        scene.SetDevice();
        std::thread starter([&] { scene.stream->StartStream(); });
        hanging.acquire();
        scene.stream->StopStream();
        starter.join();
        QCOMPARE(scene.engine.alive.load(), 0);
        QCOMPARE(scene.engine.stops.load(), 2); // once more, by the start, which may have come to life after the first
    }

    // An engine may notice the end of a device while it is read, on the pump's own thread.
    void sessionEndsWhileItIsRead()
    {
        Scene scene;
        std::atomic<int> reads{0};
        scene.engine.onStart = [&](const auto& session) {
            session->ReportStarted(new ScriptedReader([&, running = session.get()] {
                if (++reads == 3)
                    running->ReportStopped();
                return SolidFrame({64, 48}, Qt::green);
            }));
        };
        scene.Run();
        QTRY_COMPARE(reads.load(), 3);
        QTRY_COMPARE(scene.Centre(), PLACEHOLDER);
        QCOMPARE(reads.load(), 3);
        scene.stream->StopStream();
    }
};

int main(int argc, char* argv[])
{
    PrepareProcess(argv[0]);
    QApplication application(argc, argv);
    if (argc == 2 && argv[1] == QLatin1String(LEAK_OPTION)) {
        LeakRunningPreview();
        return 0;
    }
    tst_WebCameraPreviewStream test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_WebCameraPreviewStream.moc"
