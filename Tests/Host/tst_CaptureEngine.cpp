#include <Host/SessionRecorder.h>
#include <Support/LogCapture.h>
#include <Support/ScriptedEngine.h>
#include <Support/TestCase.h>

#include <Zelkor/StandIn/CaptureEngine.h>

#include <QElapsedTimer>

#include <atomic>
#include <future>
#include <thread>

using namespace Zelkor;
using namespace Zelkor::StandIn;
using Support::ReadFrame;
using Support::SessionRecorder;
using Support::Start;

namespace {

using Session = boost::intrusive_ptr<Acquis::ICaptureSession>;
using Script = std::function<CaptureError(SourceChannel&)>;

constexpr std::chrono::seconds LIMIT(20);
constexpr qint64 AT_ONCE = 1000; // milliseconds; far below what the stuck devices of these tests take

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
        struct Source : CaptureSource
        {
            explicit Source(const Script& script) : script(script) {}
            CaptureError Run(SourceChannel& channel) override { return script(channel); }
            const Script script;
        };
        return script ? std::make_unique<Source>(script) : nullptr;
    }

private:
    Script script;
};

Session SessionOf(Script script, const std::shared_ptr<const Time::IChronometer>& chronometer = nullptr)
{
    return Support::CreateSession(new ScriptedDevice(std::move(script)), 0, chronometer);
}

CaptureError Deliver(SourceChannel& channel, std::int64_t time, CaptureError result = CaptureError::None)
{
    const auto leave = [](const auto&, const auto&) {};
    channel.Deliver(VideoFrame::Create({Proc::PixFmt::GRAY8, 4, 2}, leave, time));
    return result;
}

CaptureError DeliverOne(SourceChannel& channel)
{
    Deliver(channel, 1);
    channel.WaitForEnd(std::chrono::steady_clock::now() + LIMIT);
    return CaptureError::None;
}

// Holds a thread until it is released.
struct Hang
{
    void Pass()
    {
        reached.set_value();
        released.get_future().wait();
    }

    std::promise<void> reached;
    std::promise<void> released;
};

} // namespace

Q_DECLARE_METATYPE(Script)

class tst_CaptureEngine : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatBecomesOfASession_data()
    {
        QTest::addColumn<QStringList>("calls");
        QTest::addColumn<Script>("script");
        const auto row = [](const char* name, const QStringList& calls, const Script& script) {
            QTest::newRow(name) << calls << script;
        };
        row("no device", {"error 1"}, nullptr);
        row("cannot open", {"error 1"}, [](auto&) { return CaptureError::CannotOpen; });
        row("ends without a picture", {"error 1"}, [](auto&) { return CaptureError::None; });
        row("throws", {"error 3"}, [](auto&) -> CaptureError { throw std::runtime_error("broken"); });
        row("throws no exception class", {"error 3"}, [](auto&) -> CaptureError { throw "broken"; });
        row("ends by itself", {"started", "stopped"}, [](auto& channel) { return Deliver(channel, 1); });
        row("fails while running", {"started", "error 2"},
            [](auto& channel) { return Deliver(channel, 1, CaptureError::Lost); });
        row("errors from many threads", {"error 2"}, [](auto& channel) {
            std::vector<std::future<void>> threads;
            for (int i = 0; i < 8; ++i)
                threads.push_back(std::async(std::launch::async, [&] { channel.Fail(CaptureError::Lost); }));
            threads.clear();
            return CaptureError::Failed;
        });
    }

    void tellsWhatBecomesOfASession()
    {
        QFETCH(Script, script);
        QFETCH(QStringList, calls);
        const Session session = SessionOf(script);
        // A session that has come to its end starts again.
        for (int i = 0; i < 2; ++i) {
            const auto recorder = Start(session);
            QVERIFY(recorder->WaitFor(calls));
            QVERIFY(WaitForEngineIdle(LIMIT));
            session->Stop();
            QCOMPARE(recorder->Calls(), calls);
            QCOMPARE(recorder.use_count(), 1L);
        }
    }

    void startAndStopAreToldOnceOnAnEngineThread()
    {
        struct Clock : Time::IChronometer
        {
            std::int64_t Now() const override { return 500; }
        };
        const Session session = SessionOf(DeliverOne, std::make_shared<Clock>());
        const auto recorder = std::make_shared<SessionRecorder>();
        const auto other = std::make_shared<SessionRecorder>();
        std::atomic<int> wrong{0};
        recorder->onCall = [&, caller = std::this_thread::get_id()](auto&, auto* told) {
            wrong += std::this_thread::get_id() == caller || (told && told != session);
        };
        session->Start(recorder);
        QVERIFY(recorder->WaitFor({"started"}));
        QCOMPARE(recorder->startTime, std::int64_t(500));
        QCOMPARE(ReadFrame(*recorder->CreateOutput())->GetTime(), std::int64_t(500));
        session->Start(other);
        session->Stop();
        session->Stop();
        QCOMPARE(recorder->Calls(), QStringList({"started", "stopped"}));
        QCOMPARE(other->Calls(), QStringList());
        QCOMPARE(int(wrong), 0);
        // Neither keeps the other: an observer may hold its session.
        QCOMPARE(recorder.use_count(), 1L);
        QCOMPARE(session->GetRefCount(), 1);
    }

    void stopDoesNotWaitForTheDevice_data()
    {
        QTest::addColumn<bool>("opens");
        QTest::newRow("that opens") << true;
        QTest::newRow("that closes") << false;
    }

    void stopDoesNotWaitForTheDevice()
    {
        QFETCH(bool, opens);
        const auto hang = std::make_shared<Hang>();
        const Session session = SessionOf([hang, opens](SourceChannel& channel) {
            if (!opens)
                DeliverOne(channel);
            hang->Pass();
            return Deliver(channel, 2, CaptureError::Failed);
        });
        const auto recorder = Start(session);
        if (opens)
            QVERIFY(hang->reached.get_future().wait_for(LIMIT) == std::future_status::ready);
        else
            QVERIFY(recorder->WaitFor({"started"}));
        const auto output = opens ? nullptr : recorder->CreateOutput();
        QVERIFY(opens || ReadFrame(*output));

        QElapsedTimer timer;
        timer.start();
        session->Stop();
        QVERIFY(timer.elapsed() < AT_ONCE);
        const QStringList calls = opens ? QStringList() : QStringList{"started", "stopped"};
        QCOMPARE(recorder->Calls(), calls);
        QCOMPARE(recorder.use_count(), 1L);
        QVERIFY(!WaitForEngineIdle(std::chrono::milliseconds(20)));
        hang->released.set_value();
        QVERIFY(WaitForEngineIdle(LIMIT));
        QVERIFY(opens || !ReadFrame(*output));
        QCOMPARE(recorder->Calls(), calls);
    }

    void stopWaitsForACallThatRuns()
    {
        const Session session = SessionOf(DeliverOne);
        const auto recorder = std::make_shared<SessionRecorder>();
        Hang hang;
        std::atomic<bool> over{false};
        recorder->onCall = [&](auto&, auto* told) {
            if (told)
                hang.Pass();
            over = true;
        };
        session->Start(recorder);
        QVERIFY(recorder->WaitFor({"started"}));
        auto stopped = std::async(std::launch::async, [&] {
            session->Stop();
            return bool(over);
        });
        QVERIFY(stopped.wait_for(std::chrono::milliseconds(50)) == std::future_status::timeout);
        hang.released.set_value();
        QVERIFY(stopped.get());
        QCOMPARE(recorder->Calls(), QStringList({"started", "stopped"}));
    }

    void sessionMayBeStoppedAndRestartedWithinItsCalls()
    {
        std::atomic<int> runs{0};
        const Session session = SessionOf(
            [&](SourceChannel& channel) { return ++runs < 4 ? CaptureError::CannotOpen : DeliverOne(channel); });
        const auto recorder = std::make_shared<SessionRecorder>();
        int starts = 0;
        recorder->onCall = [&](auto& call, auto* told) {
            if (call == "error 1")
                told->Start(recorder);
            if (call != "started")
                return;
            const bool again = ++starts < 5;
            for (int i = 0; i < 2; ++i) {
                told->Stop();
                if (again)
                    told->Start(recorder);
            }
        };
        session->Start(recorder);
        const QStringList once{"started", "stopped"};
        QVERIFY(recorder->WaitFor(QStringList{"error 1", "error 1", "error 1"} + once + once + once + once + once));
        QVERIFY(WaitForEngineIdle(LIMIT));
        QCOMPARE(recorder.use_count(), 1L);
    }

    void lastReferenceStops_data()
    {
        QTest::addColumn<QString>("when");
        for (const char* when : {"outside", "started", "stopped", "error 2"})
            QTest::newRow(when) << when;
    }

    void lastReferenceStops()
    {
        QFETCH(QString, when);
        Session session = SessionOf([&](SourceChannel& channel) {
            if (when == "error 2")
                return Deliver(channel, 1, CaptureError::Lost);
            return when == "stopped" ? Deliver(channel, 1) : DeliverOne(channel);
        });
        const auto recorder = std::make_shared<SessionRecorder>();
        recorder->onCall = [&](auto& call, auto*) {
            if (call == when)
                session = nullptr;
        };
        session->Start(recorder);
        if (when == "outside") {
            QVERIFY(recorder->WaitFor({"started"}));
            session = nullptr;
        }
        const QStringList calls{"started", when == "error 2" ? when : "stopped"};
        QVERIFY(recorder->WaitFor(calls));
        QVERIFY(WaitForEngineIdle(LIMIT));
        QCOMPARE(recorder->Calls(), calls);
        QVERIFY(!session);
        QCOMPARE(recorder.use_count(), 1L);
    }

    void newestFrameWinsInTheTimeOfItsOutput()
    {
        struct Shift : Acquis::TimeShift
        {
            std::int64_t MapTime(std::int64_t time) const override { return time + 40; }
        };
        Hang hang;
        const Session session = SessionOf([&](SourceChannel& channel) {
            for (std::int64_t time = 5; time <= 7; ++time)
                Deliver(channel, time);
            channel.Deliver(nullptr);
            hang.Pass();
            return CaptureError::None;
        });
        const auto recorder = Start(session);
        QVERIFY(recorder->WaitFor({"started"}));
        hang.reached.get_future().wait();
        QCOMPARE(recorder->startTime, std::int64_t(5));

        const auto plain = recorder->CreateOutput();
        const auto shifted = recorder->CreateOutput();
        const auto frame = ReadFrame(*plain);
        QCOMPARE(frame->GetTime(), std::int64_t(7));
        shifted->SetTimeShift(new Shift);
        const auto later = ReadFrame(*shifted);
        QCOMPARE(later->GetTime(), std::int64_t(47));
        QCOMPARE(later->GetPlanes()[0].data, frame->GetPlanes()[0].data);
        QCOMPARE(ReadFrame(*shifted), later);
        QCOMPARE(ReadFrame(*plain), frame);
        shifted->SetTimeShift(nullptr);
        QCOMPARE(ReadFrame(*shifted), frame);
        session->Stop();
        QVERIFY(!ReadFrame(*plain));
        QCOMPARE(frame->GetRefCount(), 1);
        hang.released.set_value();
        QVERIFY(WaitForEngineIdle(LIMIT));
    }

    void refusesWhatItCannotCapture()
    {
        using Unit = Acquis::CaptureSessionInitializer::Unit;
        const boost::intrusive_ptr<CaptureDevice> device(new ScriptedDevice(DeliverOne));
        const auto mode = device->GetModes()[0];
        const Unit good(device, mode);
        const auto create = [](const std::vector<Unit>& units, Proc::PixFmt pixFmt, const char* name = "Default") {
            Session session = SessionOf(DeliverOne);
            Acquis::CaptureFactory::Create()->CreateSession(session, {units, nullptr, nullptr, pixFmt}, name);
            return session;
        };
        Support::LogCapture log;
        const Session session = create({good}, Proc::PixFmt::GRAY8);
        QVERIFY(log.Take().isEmpty());
        session->Start(nullptr);
        mode->SetFrameRate({15, 1});
        mode->SetFrameRate({0, 1});
        mode->SetFrameRate({30, 0});
        QCOMPARE(mode->GetFrameRate().numerator, std::int64_t(15));
        const Unit bad[] = {{nullptr, nullptr}, {device, nullptr}, {Support::OrdinaryDevice(), nullptr}};
        for (const Unit& unit : bad)
            QVERIFY(!create({unit}, Proc::PixFmt::None));
        QVERIFY(!create({}, Proc::PixFmt::None));
        QVERIFY(!create({good, good}, Proc::PixFmt::None));
        QVERIFY(!create({good}, Proc::PixFmt::NV12));
        QVERIFY(!create({good}, Proc::PixFmt::None, "Other"));
        QCOMPARE(log.Take().filter(QRegularExpression("^E ")).size(), 10);
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
        QCOMPARE(recorder.use_count(), 1L);
    }

    // The last one: this program then ends while a session runs and the device of another one hangs.
    void processMayExitWhileSessionsRun()
    {
        static const auto recorder = std::make_shared<SessionRecorder>();
        static const Session running = SessionOf(DeliverOne);
        static const Session stuck = SessionOf([](SourceChannel& channel) {
            Hang().Pass();
            return DeliverOne(channel);
        });
        running->Start(recorder);
        stuck->Start(recorder);
        stuck->Stop();
        QVERIFY(recorder->WaitFor({"started"}));
    }
};

VX_TEST_MAIN(tst_CaptureEngine)
#include "tst_CaptureEngine.moc"
