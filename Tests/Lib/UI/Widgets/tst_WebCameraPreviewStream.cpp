#include <UI/Widgets/WebCameraPreviewStream.h>

#include <UI/Widgets/VideoPreviewWidget.h>

#include <Support/Frames.h>
#include <Support/LogCapture.h>
#include <Support/ScriptedEngine.h>
#include <Support/TestCase.h>

#include <Zelkor/StandIn/CaptureDevice.h>
#include <Zelkor/StandIn/CaptureEngine.h>

#include <QSemaphore>
#include <QSignalSpy>

#include <cmath>

using namespace Support;
using Vx::WebCameraPreviewStream;
using Vx::UI::VideoPreviewWidget;

namespace {

const QColor PLACEHOLDER(200, 30, 40);

// A shown preview with a red default image, and a stream on it.
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

    void Run(int rate = 100) const
    {
        stream->SetDevice(OrdinaryDevice(rate), "only", rate);
        stream->StartStream();
    }

    QColor Centre() const { return preview->grab().toImage().pixelColor(32, 24); }

    std::unique_ptr<VideoPreviewWidget> preview;
    QPointer<WebCameraPreviewStream> stream;
};

boost::intrusive_ptr<ScriptedReader> ReaderOf(const QColor& color)
{
    return new ScriptedReader([frame = SolidFrame({64, 48}, color)] { return frame; });
}

QStringList Repeated(const QString& line, int count)
{
    return QVector<QString>(count, line).toList();
}

const QString ERROR_LINE("E Lib/UI/Widgets/WebCameraPreviewStream:212"
                         " Zelkor::Vx::WebCameraPreviewStream::Impl::handleError:"
                         " Cannot create preview stream. Error code: %1");

} // namespace

using Rates = std::vector<Acquis::Rational>;
Q_DECLARE_METATYPE(Rates)

class tst_WebCameraPreviewStream : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void choosesModeAndRate_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("rate");
        QTest::addColumn<Rates>("rates");
        QTest::addColumn<int>("mode");
        QTest::addColumn<double>("chosen");
        const Rates usual{{15, 1}, {25, 1}, {30000, 1001}};
        QTest::newRow("by name and rate") << "B" << 25.0 << usual << 1 << 25.0;
        QTest::newRow("two of a name: the first") << "A" << 15.0 << usual << 0 << 15.0;
        QTest::newRow("unknown name: the first; inexact rate: the last") << "C" << 30.0 << usual << 0 << 30000 / 1001.0;
        QTest::newRow("bad: not a number: the last") << "A" << std::nan("") << usual << 0 << 30000 / 1001.0;
        QTest::newRow("bad: zero denominator is passed over")
            << "A" << 0.0 << Rates{{24, 1}, {0, 0}, {30, -1}} << 0 << 24.0;
        QTest::newRow("bad: below one is passed over") << "A" << 0.5 << Rates{{10, 1}, {1, 2}} << 0 << 10.0;
        QTest::newRow("bad: nothing usable") << "A" << 0.5 << Rates{{1, 2}, {0, 0}, {-30, 1}} << -1 << 0.0;
        QTest::newRow("bad: no rates") << "A" << 30.0 << Rates() << -1 << 0.0;
    }

    void choosesModeAndRate()
    {
        QFETCH(QString, name);
        QFETCH(double, rate);
        QFETCH(Rates, rates);
        QFETCH(int, mode);
        QFETCH(double, chosen);
        LogCapture log;
        ScriptedEngine engine;
        Scene scene;
        boost::intrusive_ptr<ScriptedDevice> device(new ScriptedDevice);
        std::vector<boost::intrusive_ptr<ScriptedMode>> modes;
        for (const char* modeName : {"A", "B", "A"}) {
            modes.emplace_back(new ScriptedMode(modeName, rates));
            device->modes.push_back(modes.back());
        }
        scene.stream->SetDevice(device, name, rate);
        for (int i = 0; i < 3; ++i) {
            const Acquis::Rational& set = modes[i]->chosen;
            QCOMPARE(double(set.numerator) / set.denominator, i == mode ? chosen : -1.0);
        }
        QCOMPARE(engine.created.load(), mode < 0 ? 0 : 1);
        QCOMPARE(log.Lines().size(), QString(QTest::currentDataTag()).startsWith("bad") ? 1 : 0);
        QCOMPARE(engine.starts.load(), 0);
        scene.stream->StartStream();
        QCOMPARE(engine.starts.load(), mode < 0 ? 0 : 1);
    }

    void devicesThatCannotBeUsed()
    {
        LogCapture log;
        ScriptedEngine engine;
        Scene scene;
        boost::intrusive_ptr<ScriptedDevice> device(new ScriptedDevice);
        scene.stream->SetDevice(device, "A", 30); // no modes at all
        QCOMPARE(log.Take().size(), 1);

        device = OrdinaryDevice(); // one whose modes do not belong to it
        device->deniesItsModes = true;
        scene.stream->SetDevice(device, "only", 30);
        QCOMPARE(log.Take(), QStringList("E Lib/UI/Widgets/WebCameraPreviewStream:150"
                                         " Zelkor::Vx::WebCameraPreviewStream::Impl::BuildSession:"
                                         " Incompatible device and settings"));
        engine.refusesSessions = true;
        scene.stream->SetDevice(OrdinaryDevice(), "only", 30);
        scene.stream->StartStream();
        scene.stream->SetDevice(nullptr, "only", 30);
        scene.stream->StartStream();
        QCOMPARE(engine.starts.load(), 0);
        QCOMPARE(log.Take(), QStringList());
    }

    void settingsDialogOfTheDevice()
    {
        struct Dialog : RefCounted<Acquis::IDeviceSettings>
        {
            void ShowSettingsDialog() override { ++shown; }
            int shown = 0;
        };
        ScriptedEngine engine;
        Scene scene;
        boost::intrusive_ptr<Dialog> first(new Dialog);
        engine.deviceSettings = {first, new Dialog};
        scene.stream->ShowCurrentDeviceSettings();
        QVERIFY(!scene.stream->IsWebcameraSettingsAvailable());
        scene.stream->SetDevice(OrdinaryDevice(), "only", 30);
        QVERIFY(scene.stream->IsWebcameraSettingsAvailable());
        scene.stream->ShowCurrentDeviceSettings();
        QCOMPARE(first->shown, 1);
        scene.stream->SetDevice(nullptr, "", 0);
        QVERIFY(!scene.stream->IsWebcameraSettingsAvailable());
        scene.stream->ShowCurrentDeviceSettings();
        QCOMPARE(first->shown, 1);
    }

    void pictureRunsStopsAndRunsAgain()
    {
        ScriptedEngine engine;
        Scene scene;
        const auto reader = ReaderOf(Qt::green);
        ScriptedEngine::Session running;
        engine.onStart = [&](const auto& session) {
            running = session;
            engine.OnThread([&engine, session, reader] { session->ReportStarted(reader); });
        };
        scene.stream->StartStream();
        QElapsedTimer timer;
        timer.start();
        scene.Run();
        QTRY_COMPARE(scene.Centre(), QColor(Qt::green));
        // The schedule is absolute: never more ticks than periods, and late ones are made up for.
        QTRY_VERIFY(reader->reads >= 20);
        QVERIFY(timer.elapsed() >= 20 * 10);
        QCOMPARE(reader->outputName, std::string("WebCameraPreview"));
        QCOMPARE(reader->shift->MapTime(-12345), std::int64_t(-12345));

        // The session ends by itself: it is kept and can be started again.
        engine.OnThread([&] { running->ReportStopped(); });
        engine.Join();
        QCOMPARE(scene.Centre(), PLACEHOLDER);
        scene.stream->StartStream();
        QTRY_COMPARE(scene.Centre(), QColor(Qt::green));

        scene.stream->StopStream();
        QCOMPARE(scene.Centre(), PLACEHOLDER);
        const int reads = reader->reads;
        scene.stream->StartStream();
        QCOMPARE(engine.starts.load(), 2);
        QCOMPARE(engine.stops.load(), 1);
        QCOMPARE(reader->reads.load(), reads);
        running = nullptr;
        QCOMPARE(engine.alive.load(), 0);
    }

    void sevenErrorsGiveOneSignal_data()
    {
        QTest::addColumn<int>("threads");
        QTest::addColumn<int>("errorsEach");
        QTest::newRow("at once, inside start") << 0 << 1;
        QTest::newRow("on an engine thread") << 1 << 1;
        QTest::newRow("many at a time from several threads") << 4 << 25;
        QTest::newRow("once, then there is no session any more") << 0 << 0;
    }

    void sevenErrorsGiveOneSignal()
    {
        QFETCH(int, threads);
        QFETCH(int, errorsEach);
        LogCapture log;
        ScriptedEngine engine;
        Scene scene;
        QSignalSpy failed(scene.stream, &WebCameraPreviewStream::WebCameraOpenError);
        QThread* emitter = nullptr;
        connect(
            scene.stream, &WebCameraPreviewStream::WebCameraOpenError, scene.stream,
            [&] { emitter = QThread::currentThread(); }, Qt::DirectConnection);
        engine.onStart = [&](const auto& session) {
            if (threads == 0)
                session->ReportError(5);
            engine.refusesSessions = errorsEach == 0;
            for (int i = 0; i < threads; ++i) {
                engine.OnThread([=] {
                    for (int k = 0; k < errorsEach; ++k)
                        session->ReportError(5);
                });
            }
        };
        scene.stream->SetDevice(OrdinaryDevice(), "only", 100);
        const int starts = errorsEach > 0 ? 7 : 1;
        for (int round = 1; round <= 2; ++round) {
            QElapsedTimer timer;
            timer.start();
            if (starts == 1) {
                engine.refusesSessions = false;
                scene.stream->SetDevice(OrdinaryDevice(), "only", 100);
            }
            scene.stream->StartStream();
            QTRY_COMPARE_WITH_TIMEOUT(failed.size(), round, 20000);
            QVERIFY(timer.elapsed() >= 7 * 200);
            engine.Join();
            QCOMPARE(engine.starts.load(), starts * round);
            QCOMPARE(log.Take(), Repeated(ERROR_LINE.arg(5), starts * qMax(1, threads) * qMax(1, errorsEach)));
        }
        QCOMPARE(emitter, qApp->thread());
        scene.stream->StopStream();
        QCOMPARE(engine.alive.load(), 0);
    }

    void retrySucceeds()
    {
        ScriptedEngine engine;
        Scene scene;
        QSignalSpy failed(scene.stream, &WebCameraPreviewStream::WebCameraOpenError);
        const auto reader = ReaderOf(Qt::green);
        engine.onStart = [&](const auto& session) {
            engine.OnThread([&, session] {
                if (engine.starts < 3)
                    session->ReportError(1);
                else
                    session->ReportStarted(reader);
            });
        };
        scene.Run();
        QTRY_COMPARE(scene.Centre(), QColor(Qt::green));
        QCOMPARE(engine.starts.load(), 3);
        QCOMPARE(failed.size(), 0);
    }

    // What the application stopped does not start again. A second stream, left alone, tells when a retry would have
    // come.
    void stopCancelsARetry_data()
    {
        QTest::addColumn<bool>("byStop");
        QTest::newRow("StopStream") << true;
        QTest::newRow("SetDevice") << false;
    }

    void stopCancelsARetry()
    {
        QFETCH(bool, byStop);
        ScriptedEngine engine;
        Scene stopped;
        Scene other;
        engine.onStart = [&](const auto& session) { session->ReportError(1); };
        for (const Scene* scene : {&stopped, &other})
            scene->stream->SetDevice(OrdinaryDevice(), "only", 100);
        stopped.stream->StartStream();
        if (byStop)
            stopped.stream->StopStream();
        else
            stopped.stream->SetDevice(OrdinaryDevice(), "only", 100);
        other.stream->StartStream();
        QTRY_VERIFY(engine.starts >= 4);
        QCOMPARE(engine.starts.load(), 4);
        QCOMPARE(engine.created.load(), 2 + 2 + (byStop ? 0 : 1));
    }

    void lateCallsOfAReplacedSessionTouchNothing()
    {
        LogCapture log;
        ScriptedEngine engine;
        Scene scene;
        std::vector<ScriptedEngine::Session> sessions;
        const auto stale = ReaderOf(Qt::blue);
        const auto current = ReaderOf(Qt::green);
        engine.onStop = [](const auto&) {};
        engine.onStart = [&](const auto& session) { sessions.push_back(session); };
        for (int i = 0; i < 2; ++i)
            scene.Run();
        sessions[0]->ReportStarted(stale);
        sessions[1]->ReportStarted(current);
        engine.OnThread([&] {
            sessions[0]->ReportStarted(stale);
            sessions[0]->ReportError(3);
            sessions[0]->ReportStopped();
        });
        engine.Join();
        const int reads = current->reads;
        QTRY_VERIFY(current->reads > reads + 25); // beyond the time of a retry
        QCOMPARE(stale->reads.load(), 0);
        QCOMPARE(engine.starts.load(), 2);
        QCOMPARE(scene.Centre(), QColor(Qt::green));
        QCOMPARE(log.Lines(), QStringList(ERROR_LINE.arg(3)));

        scene.preview.reset();
        for (const auto& session : sessions) {
            session->ReportStarted(stale);
            session->ReportError(3);
            session->ReportStopped();
        }
        QCOMPARE(stale->reads.load(), 0);
    }

    void destroyedWhileRunning_data()
    {
        QTest::addColumn<QString>("what");
        for (const char* what : {"preview", "stream", "preview without its stream", "while an error is pending"})
            QTest::newRow(what) << what;
    }

    void destroyedWhileRunning()
    {
        QFETCH(QString, what);
        for (int i = 0; i < 20; ++i) {
            ScriptedEngine engine;
            Scene scene;
            const auto reader = ReaderOf(Qt::green);
            engine.onStart = [&](const auto& session) {
                engine.OnThread([=] {
                    session->ReportStarted(reader);
                    if (what.contains("error"))
                        session->ReportError(1);
                });
            };
            scene.Run(1000);
            QTRY_VERIFY(reader->reads > i % 3);
            std::unique_ptr<WebCameraPreviewStream> orphan;
            if (what == "preview without its stream") {
                orphan.reset(scene.stream);
                orphan->setParent(nullptr);
            }
            if (what == "stream")
                delete scene.stream.data();
            else
                scene.preview.reset();
            const int reads = reader->reads;
            if (orphan) {
                orphan->StartStream();
                orphan->SetDevice(OrdinaryDevice(), "only", 100);
                orphan->StartStream();
                orphan->StopStream();
            }
            engine.Join();
            QCOMPARE(reader->reads.load(), reads);
        }
    }

    void startAndStopFromTwoThreads()
    {
        ScriptedEngine engine;
        Scene scene;
        const auto reader = ReaderOf(Qt::green);
        engine.onStart = [&](const auto& session) {
            const int turn = engine.starts % 3;
            engine.OnThread([=] {
                if (turn == 0)
                    session->ReportError(1);
                else
                    session->ReportStarted(reader);
                if (turn == 2)
                    session->ReportStopped();
            });
        };
        FLAGS_minloglevel = google::GLOG_FATAL;
        for (int i = 0; i < 1000; ++i) {
            scene.stream->SetDevice(OrdinaryDevice(1000), "only", 1000);
            std::thread starter([&] { scene.stream->StartStream(); });
            std::thread stopper([&] { scene.stream->StopStream(); });
            QCoreApplication::processEvents();
            starter.join();
            stopper.join();
            if (i % 50 == 0)
                engine.Join();
        }
        FLAGS_minloglevel = google::GLOG_INFO;
        engine.Join();
        scene.stream->StopStream();
        QCOMPARE(engine.alive.load(), 0);
        const int reads = reader->reads;
        QCoreApplication::processEvents();
        QCOMPARE(reader->reads.load(), reads);
        QCOMPARE(scene.Centre(), PLACEHOLDER);
    }

    void stopFreesAStartThatHangs()
    {
        ScriptedEngine engine;
        Scene scene;
        QSemaphore hanging;
        QSemaphore stopped;
        engine.onStart = [&](const auto&) {
            hanging.release();
            stopped.acquire();
        };
        engine.onStop = [&](const auto&) { stopped.release(); };
        scene.stream->SetDevice(OrdinaryDevice(), "only", 100);
        std::thread starter([&] { scene.stream->StartStream(); });
        hanging.acquire();
        scene.stream->StopStream();
        starter.join();
        QCOMPARE(engine.alive.load(), 0);
    }

    // An engine may notice the end of a device while it is read, on the pump's own thread.
    void sessionEndsWhileItIsRead()
    {
        ScriptedEngine engine;
        Scene scene;
        ScriptedEngine::Session running;
        std::atomic<int> reads{0};
        engine.onStart = [&](const auto& session) {
            running = session;
            session->ReportStarted(new ScriptedReader([&]() -> boost::intrusive_ptr<Proc::IDataVideo> {
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

    void slotMayDeleteThePreview()
    {
        ScriptedEngine engine;
        Scene scene;
        engine.onStart = [](const auto& session) { session->ReportError(1); };
        connect(scene.stream, &WebCameraPreviewStream::WebCameraOpenError, qApp, [&] { scene.preview.reset(); });
        scene.Run();
        QTRY_VERIFY_WITH_TIMEOUT(!scene.preview, 20000);
    }

    void testPictureRunsInThePreview()
    {
        Scene scene;
        const auto device = StandIn::CreateTestPictureDevice();
        for (const auto& mode : device->GetModes()) {
            scene.stream->SetDevice(device, QString::fromStdString(mode->GetName()), 30);
            scene.stream->StartStream();
            QTRY_VERIFY(scene.Centre() != PLACEHOLDER);
            const QImage before = scene.preview->grab().toImage();
            QTRY_VERIFY(scene.preview->grab().toImage() != before);
        }
        scene.preview.reset();
        QVERIFY(StandIn::WaitForEngineIdle(std::chrono::seconds(5)));
    }
};

VX_TEST_MAIN(tst_WebCameraPreviewStream)
#include "tst_WebCameraPreviewStream.moc"
