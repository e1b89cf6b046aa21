#include <Host/SessionRecorder.h>
#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <Zelkor/StandIn/CaptureEngine.h>

#include <QElapsedTimer>
#include <QProcess>

#include <atomic>
#include <future>

using namespace Zelkor;
using namespace Zelkor::StandIn;
using Support::CreateSession;
using Support::ReadFrame;
using Support::SessionRecorder;

namespace {

using Session = boost::intrusive_ptr<Acquis::ICaptureSession>;
using Recorder = std::shared_ptr<SessionRecorder>;
using Script = std::function<CaptureError(SourceChannel&)>;

constexpr std::chrono::seconds LIMIT(20);
constexpr qint64 AT_ONCE = 1000; // milliseconds; far below what the stuck devices of these tests take
constexpr char LEAVE_RUNNING[] = "--leave-running";

class ScriptedSource : public CaptureSource
{
public:
    explicit ScriptedSource(Script script) : script(std::move(script)) {}
    CaptureError Run(SourceChannel& channel) override { return script(channel); }

private:
    Script script;
};

class ScriptedDevice : public CaptureDevice
{
public:
    explicit ScriptedDevice(Script script)
        : CaptureDevice(Kind::Other, "scripted", "Scripted",
                        {new VideoMode("4×2", {Proc::PixFmt::GRAY8, 4, 2}, {{15, 1}, {30, 1}})}),
          script(std::move(script))
    {}

    std::unique_ptr<CaptureSource> CreateSource(const VideoMode&) const override
    {
        return script ? std::make_unique<ScriptedSource>(script) : nullptr;
    }

private:
    Script script;
};

Session SessionOf(Script script, const std::shared_ptr<const Time::IChronometer>& chronometer = nullptr)
{
    const boost::intrusive_ptr<CaptureDevice> device(new ScriptedDevice(std::move(script)));
    return CreateSession(device, device->GetModes()[0], chronometer);
}

boost::intrusive_ptr<VideoFrame> FrameAt(std::int64_t time)
{
    return VideoFrame::Create(
        {Proc::PixFmt::GRAY8, 4, 2}, [](const auto&, const auto&) {}, time);
}

CaptureError WaitForEnd(SourceChannel& channel)
{
    channel.WaitForEnd(std::chrono::steady_clock::now() + LIMIT);
    return CaptureError::None;
}

CaptureError DeliverOne(SourceChannel& channel)
{
    channel.Deliver(FrameAt(1));
    return WaitForEnd(channel);
}

/// Holds threads until it is opened; a device that hangs. Says when somebody has come.
class Latch
{
public:
    ~Latch() { Open(); }
    void Open() { opened = true; }

    void Pass()
    {
        reached = true;
        while (!opened)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }

    std::atomic<bool> reached{false};
    std::atomic<bool> opened{false};
};

// A program that ends while one session runs and the device of another one hangs.
int LeaveRunning()
{
    static const auto latch = std::make_shared<Latch>();
    static const Session running = SessionOf(DeliverOne);
    static const Session stuck = SessionOf([](SourceChannel&) {
        const auto held = latch;
        held->Pass();
        return CaptureError::None;
    });
    static const auto recorder = std::make_shared<SessionRecorder>();
    running->Start(recorder);
    stuck->Start(recorder);
    stuck->Stop();
    return recorder->WaitFor({"started"}) ? 0 : 1;
}

} // namespace

Q_DECLARE_METATYPE(Script)

class tst_CaptureEngine : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatBecomesOfASession_data()
    {
        QTest::addColumn<Script>("script");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("no device") << Script() << QStringList{"error 1"};
        QTest::newRow("cannot open") << Script([](auto&) { return CaptureError::CannotOpen; })
                                     << QStringList{"error 1"};
        QTest::newRow("fails while running") << Script([](auto& channel) {
            channel.Deliver(FrameAt(1));
            return CaptureError::Lost;
        }) << QStringList{"started", "error 2"};
        QTest::newRow("throws") << Script([](auto&) -> CaptureError { throw std::runtime_error("broken"); })
                                << QStringList{"error 3"};
        QTest::newRow("ends by itself") << Script([](auto& channel) {
            channel.Deliver(FrameAt(1));
            return CaptureError::None;
        }) << QStringList{"started", "stopped"};
        QTest::newRow("ends without a picture")
            << Script([](auto&) { return CaptureError::None; }) << QStringList{"error 1"};
        QTest::newRow("errors from many threads") << Script([](auto& channel) {
            std::vector<std::thread> threads;
            for (int i = 0; i < 8; ++i)
                threads.emplace_back([&] { channel.Fail(CaptureError::Lost); });
            for (auto& thread : threads)
                thread.join();
            return CaptureError::Failed;
        }) << QStringList{"error 2"};
    }

    void tellsWhatBecomesOfASession()
    {
        QFETCH(Script, script);
        QFETCH(QStringList, calls);
        const Session session = SessionOf(script);
        // A session that has come to its end starts again.
        for (int i = 0; i < 2; ++i) {
            const auto recorder = std::make_shared<SessionRecorder>();
            const std::weak_ptr<SessionRecorder> weak = recorder;
            session->Start(recorder);
            QVERIFY(recorder->WaitFor(calls));
            QVERIFY(WaitForEngineIdle(LIMIT));
            session->Stop();
            QCOMPARE(recorder->Calls(), calls);
            QCOMPARE(recorder.use_count(), 1L);
        }
    }

    void startAndStopAreToldOnceOnAnEngineThread()
    {
        const Session session = SessionOf(DeliverOne);
        const auto recorder = std::make_shared<SessionRecorder>();
        const auto other = std::make_shared<SessionRecorder>();
        std::atomic<int> onCaller{0};
        const auto caller = std::this_thread::get_id();
        recorder->onStarted = [&](auto& told) { onCaller += std::this_thread::get_id() == caller || &told != session; };
        recorder->onStopped = [&] { onCaller += std::this_thread::get_id() == caller; };
        session->Stop();
        session->Start(recorder);
        session->Start(other);
        QVERIFY(recorder->WaitFor({"started"}));
        session->Start(other);
        session->Stop();
        session->Stop();
        QCOMPARE(recorder->Calls(), QStringList({"started", "stopped"}));
        QCOMPARE(other->Calls(), QStringList());
        QCOMPARE(int(onCaller), 0);
    }

    void stopDoesNotWaitForADeviceThatOpens()
    {
        const auto latch = std::make_shared<Latch>();
        const Session session = SessionOf([latch](SourceChannel& channel) {
            latch->Pass();
            channel.Deliver(FrameAt(1));
            return CaptureError::Failed;
        });
        const auto recorder = std::make_shared<SessionRecorder>();
        session->Start(recorder);
        QTRY_VERIFY_WITH_TIMEOUT(latch->reached, 20000);
        QElapsedTimer timer;
        timer.start();
        session->Stop();
        QVERIFY(timer.elapsed() < AT_ONCE);
        QCOMPARE(recorder.use_count(), 1L);
        QVERIFY(!WaitForEngineIdle(std::chrono::milliseconds(20)));
        latch->Open();
        QVERIFY(WaitForEngineIdle(LIMIT));
        QCOMPARE(recorder->Calls(), QStringList());
    }

    void stopDoesNotWaitForADeviceThatCloses()
    {
        const auto latch = std::make_shared<Latch>();
        const Session session = SessionOf([latch](SourceChannel& channel) {
            DeliverOne(channel);
            latch->Pass();
            channel.Deliver(FrameAt(2));
            return CaptureError::Lost;
        });
        const auto recorder = std::make_shared<SessionRecorder>();
        session->Start(recorder);
        QVERIFY(recorder->WaitFor({"started"}));
        const auto output = recorder->CreateOutput();
        QVERIFY(ReadFrame(*output));
        QElapsedTimer timer;
        timer.start();
        session->Stop();
        QVERIFY(timer.elapsed() < AT_ONCE);
        QCOMPARE(recorder->Calls(), QStringList({"started", "stopped"}));
        latch->Open();
        QVERIFY(WaitForEngineIdle(LIMIT));
        QVERIFY(!ReadFrame(*output));
        QCOMPARE(recorder->Calls(), QStringList({"started", "stopped"}));
    }

    void stopWaitsForACallThatRuns()
    {
        const Session session = SessionOf(DeliverOne);
        const auto recorder = std::make_shared<SessionRecorder>();
        std::promise<void> release;
        std::atomic<bool> over{false};
        recorder->onStarted = [&](auto&) {
            release.get_future().wait();
            over = true;
        };
        session->Start(recorder);
        QVERIFY(recorder->WaitFor({"started"}));
        auto stopped = std::async(std::launch::async, [&] {
            session->Stop();
            return bool(over);
        });
        QVERIFY(stopped.wait_for(std::chrono::milliseconds(50)) == std::future_status::timeout);
        release.set_value();
        QVERIFY(stopped.get());
        QCOMPARE(recorder->Calls(), QStringList({"started", "stopped"}));
        QVERIFY(!recorder->Overlapped());
    }

    void sessionMayBeStoppedAndRestartedWithinItsCalls()
    {
        Session session = SessionOf(DeliverOne);
        const auto recorder = std::make_shared<SessionRecorder>();
        int starts = 0;
        recorder->onStarted = [&](auto& told) {
            told.Stop();
            if (++starts < 5)
                told.Start(recorder);
            told.Stop();
            if (starts < 5)
                told.Start(recorder);
        };
        session->Start(recorder);
        const QStringList once{"started", "stopped"};
        QVERIFY(recorder->WaitFor(once + once + once + once + once));
        QVERIFY(!recorder->Overlapped());
        QVERIFY(WaitForEngineIdle(LIMIT));
        QCOMPARE(recorder.use_count(), 1L);
    }

    void errorMayRestartAtOnce()
    {
        std::atomic<int> runs{0};
        const Session session = SessionOf(
            [&](SourceChannel& channel) { return ++runs < 4 ? CaptureError::CannotOpen : DeliverOne(channel); });
        const auto recorder = std::make_shared<SessionRecorder>();
        recorder->onError = [&](auto& told) { told.Start(recorder); };
        session->Start(recorder);
        QVERIFY(recorder->WaitFor({"error 1", "error 1", "error 1", "started"}));
        session->Stop();
        QVERIFY(!recorder->Overlapped());
    }

    void lastReferenceStops_data()
    {
        QTest::addColumn<QString>("when");
        QTest::newRow("outside") << "outside";
        QTest::newRow("in handleStarted") << "started";
        QTest::newRow("in handleStopped") << "stopped";
        QTest::newRow("in handleError") << "error";
    }

    void lastReferenceStops()
    {
        QFETCH(QString, when);
        std::atomic<bool> ended{false};
        Session session = SessionOf([&](SourceChannel& channel) {
            channel.Deliver(FrameAt(1));
            if (when == "error")
                return CaptureError::Lost;
            if (when != "stopped")
                WaitForEnd(channel);
            ended = channel.IsEnding();
            return CaptureError::None;
        });
        const auto recorder = std::make_shared<SessionRecorder>();
        recorder->onStarted = [&](auto&) {
            if (when == "started")
                session = nullptr;
        };
        recorder->onStopped = [&] {
            if (when == "stopped")
                session = nullptr;
        };
        recorder->onError = [&](auto&) { session = nullptr; };
        const Session* const address = &session;
        (*address)->Start(recorder);
        const QStringList calls{"started", when == "error" ? "error 2" : "stopped"};
        if (when == "outside") {
            QVERIFY(recorder->WaitFor({"started"}));
            session = nullptr;
        }
        QVERIFY(recorder->WaitFor(calls));
        QVERIFY(WaitForEngineIdle(LIMIT));
        QCOMPARE(recorder->Calls(), calls);
        QVERIFY(!session);
        QCOMPARE(recorder.use_count(), 1L);
    }

    void observerThatKeepsItsSessionIsLetGo()
    {
        const auto recorder = std::make_shared<SessionRecorder>();
        Session kept;
        recorder->onStarted = [&](auto& told) { kept = &told; };
        Session session = SessionOf(DeliverOne);
        session->Start(recorder);
        QVERIFY(recorder->WaitFor({"started"}));
        session->Stop();
        QCOMPARE(recorder.use_count(), 1L);
        session = nullptr;
        QCOMPARE(kept->GetRefCount(), 1);
    }

    void newestFrameWins()
    {
        std::promise<void> delivered;
        const Session session = SessionOf([&](SourceChannel& channel) {
            for (std::int64_t time = 5; time <= 7; ++time)
                channel.Deliver(FrameAt(time));
            channel.Deliver(nullptr);
            delivered.set_value();
            return WaitForEnd(channel);
        });
        const auto recorder = std::make_shared<SessionRecorder>();
        session->Start(recorder);
        QVERIFY(recorder->WaitFor({"started"}));
        delivered.get_future().wait();
        QCOMPARE(recorder->StartTime(), std::int64_t(5));
        const auto output = recorder->CreateOutput();
        const auto frame = ReadFrame(*output);
        QCOMPARE(frame->GetTime(), std::int64_t(7));
        QCOMPARE(ReadFrame(*output), frame);
        session->Stop();
        QVERIFY(!ReadFrame(*output));
        QCOMPARE(frame->GetRefCount(), 1);
    }

    void timesAreMappedForEachOutput()
    {
        struct Shift : Acquis::TimeShift
        {
            explicit Shift(std::int64_t offset) : offset(offset) {}
            std::int64_t MapTime(std::int64_t time) const override { return time + offset; }
            std::int64_t offset;
        };
        struct Clock : Time::IChronometer
        {
            std::int64_t Now() const override { return 500; }
        };
        const Session session = SessionOf(DeliverOne, std::make_shared<Clock>());
        const auto recorder = std::make_shared<SessionRecorder>();
        session->Start(recorder);
        QVERIFY(recorder->WaitFor({"started"}));
        QCOMPARE(recorder->StartTime(), std::int64_t(500));
        const auto plain = recorder->CreateOutput();
        const auto shifted = recorder->CreateOutput();
        shifted->SetTimeShift(new Shift(40));
        const auto frame = ReadFrame(*shifted);
        QCOMPARE(frame->GetTime(), std::int64_t(540));
        QCOMPARE(ReadFrame(*shifted), frame);
        QCOMPARE(frame->GetPlanes()[0].data, ReadFrame(*plain)->GetPlanes()[0].data);
        QCOMPARE(ReadFrame(*plain)->GetTime(), std::int64_t(500));
        shifted->SetTimeShift(new Shift(0));
        QCOMPARE(ReadFrame(*shifted), ReadFrame(*plain));
        shifted->SetTimeShift(nullptr);
        QCOMPARE(ReadFrame(*shifted), ReadFrame(*plain));
        session->Stop();
    }

    void refusesWhatItCannotCapture()
    {
        struct Foreign : RefCounted<Acquis::ICaptureDevice>
        {
            void GetSettings(std::vector<boost::intrusive_ptr<Acquis::ICaptureSettings>>& settings,
                             unsigned) const override
            {
                settings.clear();
            }
        };
        using Unit = Acquis::CaptureSessionInitializer::Unit;
        const boost::intrusive_ptr<CaptureDevice> device(new ScriptedDevice(DeliverOne));
        const Unit good(device, device->GetModes()[0]);
        const auto create = [](const std::vector<Unit>& units, Proc::PixFmt pixFmt, const char* name) {
            Session session = SessionOf(DeliverOne);
            Acquis::CaptureFactory::Create()->CreateSession(session, {units, nullptr, nullptr, pixFmt}, name);
            return session;
        };
        Support::LogCapture log;
        QVERIFY(create({good}, Proc::PixFmt::GRAY8, "Default"));
        QVERIFY(log.Take().isEmpty());
        QVERIFY(!create({}, Proc::PixFmt::None, "Default"));
        QVERIFY(!create({good, good}, Proc::PixFmt::None, "Default"));
        QVERIFY(!create({Unit(nullptr, nullptr)}, Proc::PixFmt::None, "Default"));
        QVERIFY(!create({Unit(device, nullptr)}, Proc::PixFmt::None, "Default"));
        QVERIFY(!create({Unit(new Foreign, nullptr)}, Proc::PixFmt::None, "Default"));
        QVERIFY(!create({good}, Proc::PixFmt::NV12, "Default"));
        QVERIFY(!create({good}, Proc::PixFmt::None, "Other"));
        QCOMPARE(log.Take().filter(QRegularExpression("^E ")).size(), 7);
        create({good}, Proc::PixFmt::None, "Default")->Start(nullptr);
        QCOMPARE(log.Take().size(), 1);
    }

    void modesKeepTheirRate()
    {
        const boost::intrusive_ptr<CaptureDevice> device(new ScriptedDevice(DeliverOne));
        const auto mode = device->GetModes()[0];
        std::vector<boost::intrusive_ptr<Acquis::ICaptureSettings>> settings(3);
        device->GetSettings(settings, Acquis::SETTINGS_KIND_VIDEO);
        QCOMPARE(settings.size(), std::size_t(1));
        QCOMPARE(settings[0].get(), static_cast<Acquis::ICaptureSettings*>(mode.get()));
        device->GetSettings(settings, 0);
        QVERIFY(settings.empty());
        QCOMPARE(mode->GetFrameRate().numerator, std::int64_t(30));
        mode->SetFrameRate({15, 1});
        Support::LogCapture log;
        mode->SetFrameRate({0, 1});
        mode->SetFrameRate({30, 0});
        QCOMPARE(log.Take().size(), 2);
        QCOMPARE(mode->GetFrameRate().numerator, std::int64_t(15));
    }

    void factoryCanBeReplaced()
    {
        struct Factory : RefCounted<Acquis::ICaptureFactory>
        {
            void CreateSession(Session& session, const Acquis::CaptureSessionInitializer&, const std::string&) override
            {
                session = nullptr;
            }
        };
        const auto own = Acquis::CaptureFactory::Create();
        const boost::intrusive_ptr<Acquis::ICaptureFactory> mine(new Factory);
        OverrideCaptureFactory(mine);
        QCOMPARE(Acquis::CaptureFactory::Create(), mine);
        OverrideCaptureFactory(nullptr);
        QCOMPARE(Acquis::CaptureFactory::Create(), own);
        QCOMPARE(mine->GetRefCount(), 1);
    }

    void startAndStopFromTwoThreads()
    {
        const Session session = SessionOf(DeliverOne);
        const auto recorder = std::make_shared<SessionRecorder>();
        const auto hammer = [&] {
            for (int i = 0; i < 500; ++i) {
                session->Start(recorder);
                if (i % 3 == 0)
                    std::this_thread::yield();
                session->Stop();
            }
        };
        std::thread other(hammer);
        hammer();
        other.join();
        const int before = recorder->Calls().size();
        session->Start(recorder);
        QTRY_COMPARE_WITH_TIMEOUT(recorder->Calls().size(), before + 1, 20000);
        session->Stop();
        const QStringList calls = recorder->Calls();
        for (int i = 0; i < calls.size(); ++i)
            QCOMPARE(calls[i], QString(i % 2 ? "stopped" : "started"));
        QCOMPARE(calls.size() % 2, 0);
        QVERIFY(!recorder->Overlapped());
        QCOMPARE(recorder.use_count(), 1L);
    }

    void processMayExitWhileSessionsRun()
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {LEAVE_RUNNING});
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QVERIFY2(process.exitCode() == 0, process.readAllStandardError());
    }
};

int main(int argc, char* argv[])
{
    Support::PrepareProcess(argv[0]);
    if (argc > 1 && QByteArray(argv[1]) == LEAVE_RUNNING)
        return LeaveRunning();
    QApplication application(argc, argv);
    tst_CaptureEngine test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_CaptureEngine.moc"
