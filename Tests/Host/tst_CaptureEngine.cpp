#include <Support/CallbackDevice.h>
#include <Support/LogCapture.h>
#include <Support/ObserverSpy.h>
#include <Support/ScriptedEngine.h>
#include <Support/TestCase.h>

#include <Zelkor/StandIn/CaptureEngine.h>

#include <QElapsedTimer>

#include <atomic>
#include <future>
#include <thread>

using namespace Zelkor;
using namespace Zelkor::StandIn;
using namespace Support;

namespace {

using Run = CallbackDevice::Run;
using Session = boost::intrusive_ptr<Acquis::ICaptureSession>;
using Unit = Acquis::CaptureSessionInitializer::Unit;

constexpr std::chrono::seconds LIMIT(20);
constexpr qint64 AT_ONCE = 1000; // milliseconds; much shorter than the blocked devices of these tests
const QStringList ONE_RUN{"started", "stopped"};

Session CreateSession(Run run, const std::shared_ptr<const Time::IChronometer>& chronometer = nullptr)
{
    return Support::CreateSession(new CallbackDevice(std::move(run)), 0, chronometer);
}

CaptureError Deliver(SourceChannel& channel, std::int64_t time, CaptureError result = CaptureError::None)
{
    channel.Deliver(VideoFrame::Create(
        {Proc::PixFmt::GRAY8, 4, 2}, [](auto&, auto&) {}, time));
    return result;
}

CaptureError DeliverUntilStopped(SourceChannel& channel)
{
    Deliver(channel, 1);
    channel.WaitForEnd(std::chrono::steady_clock::now() + LIMIT);
    return CaptureError::None;
}

// Blocks a thread until the test opens it.
class Barrier
{
public:
    void Pass()
    {
        reached.set_value();
        opened.get_future().wait();
    }
    void WaitUntilReached() { QCOMPARE(reached.get_future().wait_for(LIMIT), std::future_status::ready); }
    void Open() { opened.set_value(); }

private:
    std::promise<void> reached;
    std::promise<void> opened;
};

qint64 MillisecondsToStop(Acquis::ICaptureSession& session)
{
    QElapsedTimer timer;
    timer.start();
    session.Stop();
    return timer.elapsed();
}

} // namespace

Q_DECLARE_METATYPE(Run)

class tst_CaptureEngine : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void reportsTheOutcomeOfEachRun_data()
    {
        QTest::addColumn<QStringList>("calls");
        QTest::addColumn<Run>("run");
        const auto row = [](const char* name, const QStringList& calls, const Run& run) {
            QTest::newRow(name) << calls << run;
        };
        row("device is gone", {"error 1"}, nullptr);
        row("cannot open", {"error 1"}, [](auto&) { return CaptureError::CannotOpen; });
        row("ends without a frame", {"error 1"}, [](auto&) { return CaptureError::None; });
        row("throws", {"error 3"}, [](auto&) -> CaptureError { throw std::runtime_error("broken"); });
        row("throws a string", {"error 3"}, [](auto&) -> CaptureError { throw "broken"; });
        row("ends after a frame", ONE_RUN, [](auto& channel) { return Deliver(channel, 1); });
        row("is lost", {"started", "error 2"}, [](auto& channel) { return Deliver(channel, 1, CaptureError::Lost); });
        row("fails twice", {"error 2"}, [](auto& channel) {
            channel.Fail(CaptureError::Lost);
            return CaptureError::Failed;
        });
    }

    void reportsTheOutcomeOfEachRun()
    {
        QFETCH(Run, run);
        QFETCH(QStringList, calls);
        const Session session = CreateSession(run);
        for (int i = 0; i < 2; ++i) {
            const auto observer = Start(session);
            QVERIFY(observer->WaitFor(calls));
            QVERIFY(WaitForEngineIdle(LIMIT));
            session->Stop();
            QCOMPARE(observer->Calls(), calls);
            QCOMPARE(observer.use_count(), 1L);
        }
    }

    void observerIsCalledOnceOnAnEngineThread()
    {
        const Session session = CreateSession(DeliverUntilStopped);
        const auto observer = std::make_shared<ObserverSpy>();
        std::atomic<int> wrongCalls{0};
        observer->onCall = [&, caller = std::this_thread::get_id()](auto& call, auto* sender) {
            wrongCalls += std::this_thread::get_id() == caller;
            wrongCalls += sender != (call == "started" ? session.get() : nullptr);
        };
        session->Start(observer);
        QVERIFY(observer->WaitFor({"started"}));
        const auto ignored = Start(session); // it runs already
        session->Stop();
        session->Stop();
        QCOMPARE(observer->Calls(), ONE_RUN);
        QCOMPARE(ignored->Calls(), QStringList());
        QCOMPARE(int(wrongCalls), 0);
        QCOMPARE(observer.use_count(), 1L);
        QCOMPARE(session->GetRefCount(), 1);
    }

    void chronometerSetsTheTimeOfFrames()
    {
        struct Clock : Time::IChronometer
        {
            std::int64_t Now() const override { return 500; }
        };
        const Session session = CreateSession(DeliverUntilStopped, std::make_shared<Clock>());
        const auto observer = Start(session);
        QVERIFY(observer->WaitFor({"started"}));
        QCOMPARE(observer->startTime, std::int64_t(500));
        QCOMPARE(ReadFrame(*observer->CreateOutput())->GetTime(), std::int64_t(500));
    }

    void stopDoesNotWaitForAnOpeningDevice()
    {
        const auto opening = std::make_shared<Barrier>();
        const Session session = CreateSession([opening](SourceChannel& channel) {
            opening->Pass();
            return Deliver(channel, 2, CaptureError::Failed);
        });
        const auto observer = Start(session);
        opening->WaitUntilReached();
        QVERIFY(MillisecondsToStop(*session) < AT_ONCE);
        QCOMPARE(observer.use_count(), 1L);
        QVERIFY(!WaitForEngineIdle(std::chrono::milliseconds(20)));
        opening->Open();
        QVERIFY(WaitForEngineIdle(LIMIT));
        QCOMPARE(observer->Calls(), QStringList());
    }

    void stopDoesNotWaitForAClosingDevice()
    {
        const auto closing = std::make_shared<Barrier>();
        const Session session = CreateSession([closing](SourceChannel& channel) {
            DeliverUntilStopped(channel);
            closing->Pass();
            return Deliver(channel, 2, CaptureError::Failed);
        });
        const auto observer = Start(session);
        QVERIFY(observer->WaitFor({"started"}));
        const auto output = observer->CreateOutput();
        QVERIFY(ReadFrame(*output));
        QVERIFY(MillisecondsToStop(*session) < AT_ONCE);
        QCOMPARE(observer->Calls(), ONE_RUN);
        closing->Open();
        QVERIFY(WaitForEngineIdle(LIMIT));
        QVERIFY(!ReadFrame(*output));
        QCOMPARE(observer->Calls(), ONE_RUN);
    }

    void stopWaitsForARunningObserverCall()
    {
        const Session session = CreateSession(DeliverUntilStopped);
        const auto observer = std::make_shared<ObserverSpy>();
        Barrier call;
        observer->onCall = [&](auto& name, auto*) {
            if (name == "started")
                call.Pass();
        };
        session->Start(observer);
        call.WaitUntilReached();
        const auto stopped = std::async(std::launch::async, [&] { session->Stop(); });
        QCOMPARE(stopped.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
        call.Open();
        QCOMPARE(stopped.wait_for(LIMIT), std::future_status::ready);
        QCOMPARE(observer->Calls(), ONE_RUN);
    }

    void sessionRestartsWithinObserverCalls()
    {
        std::atomic<int> runs{0};
        const Session session = CreateSession([&](SourceChannel& channel) {
            return ++runs < 4 ? CaptureError::CannotOpen : DeliverUntilStopped(channel);
        });
        const auto observer = std::make_shared<ObserverSpy>();
        observer->onCall = [&, starts = 0](auto& call, auto* sender) mutable {
            if (call == "started") {
                sender->Stop();
                sender->Start(observer);
                sender->Stop();
            }
            if (call == "error 1" || (call == "started" && ++starts < 3))
                sender->Start(observer);
        };
        session->Start(observer);
        QVERIFY(observer->WaitFor(QStringList{"error 1", "error 1", "error 1"} + ONE_RUN + ONE_RUN + ONE_RUN));
        QVERIFY(WaitForEngineIdle(LIMIT));
        QCOMPARE(observer.use_count(), 1L);
    }

    void releaseOfTheLastReferenceStops_data()
    {
        QTest::addColumn<QStringList>("calls");
        QTest::addColumn<QString>("releasedIn");
        QTest::addColumn<Run>("run");
        QTest::newRow("in no call") << ONE_RUN << "" << Run(DeliverUntilStopped);
        QTest::newRow("in handleStarted") << ONE_RUN << "started" << Run(DeliverUntilStopped);
        QTest::newRow("in handleStopped") << ONE_RUN << "stopped" << Run([](auto& c) { return Deliver(c, 1); });
        QTest::newRow("in handleError") << QStringList{"started", "error 2"} << "error 2"
                                        << Run([](auto& c) { return Deliver(c, 1, CaptureError::Lost); });
    }

    void releaseOfTheLastReferenceStops()
    {
        QFETCH(QStringList, calls);
        QFETCH(QString, releasedIn);
        QFETCH(Run, run);
        Session session = CreateSession(run);
        const auto observer = std::make_shared<ObserverSpy>();
        observer->onCall = [&](auto& call, auto*) {
            if (call == releasedIn)
                session = nullptr;
        };
        session->Start(observer);
        if (releasedIn.isEmpty()) {
            QVERIFY(observer->WaitFor({"started"}));
            session = nullptr;
        }
        QVERIFY(observer->WaitFor(calls));
        QVERIFY(WaitForEngineIdle(LIMIT));
        QCOMPARE(observer->Calls(), calls);
        QCOMPARE(observer.use_count(), 1L);
    }

    void releaseMayCoincideWithAnError()
    {
        for (int i = 0; i < 500; ++i)
            Start(CreateSession([](auto&) { return CaptureError::CannotOpen; }));
        QVERIFY(WaitForEngineIdle(LIMIT));
    }

    void outputReadsTheNewestFrameInItsOwnTime()
    {
        struct Shift : Acquis::TimeShift
        {
            std::int64_t MapTime(std::int64_t time) const override { return time + 40; }
        };
        const Session session = CreateSession([](SourceChannel& channel) {
            Deliver(channel, 5);
            Deliver(channel, 6);
            channel.Deliver(nullptr);
            channel.WaitForEnd(std::chrono::steady_clock::now() + LIMIT);
            return CaptureError::None;
        });
        const auto observer = Start(session);
        QVERIFY(observer->WaitFor({"started"}));
        QCOMPARE(observer->startTime, std::int64_t(5));

        const auto plain = observer->CreateOutput();
        const auto shifted = observer->CreateOutput();
        shifted->SetTimeShift(new Shift);
        QTRY_COMPARE(ReadFrame(*plain)->GetTime(), std::int64_t(6));
        const auto frame = ReadFrame(*plain);
        const auto later = ReadFrame(*shifted);
        QCOMPARE(later->GetTime(), std::int64_t(46));
        QCOMPARE(later->GetPlanes()[0].data, frame->GetPlanes()[0].data);
        QCOMPARE(ReadFrame(*shifted), later);
        QCOMPARE(ReadFrame(*plain), frame);
        shifted->SetTimeShift(nullptr);
        QCOMPARE(ReadFrame(*shifted), frame);
        session->Stop();
        QVERIFY(!ReadFrame(*plain));
        QCOMPARE(frame->GetRefCount(), 1);
    }

    void factoryRefusesWhatItCannotCapture()
    {
        const boost::intrusive_ptr<CaptureDevice> device(new CallbackDevice(DeliverUntilStopped));
        const Unit unit(device, device->GetModes()[0]);
        const auto create = [](const std::vector<Unit>& units, Proc::PixFmt pixFmt, const char* implName = "Default") {
            Session session;
            Acquis::CaptureFactory::Create()->CreateSession(session, {units, nullptr, nullptr, pixFmt}, implName);
            return session;
        };
        LogCapture log;
        QVERIFY(create({unit}, Proc::PixFmt::GRAY8));
        QCOMPARE(log.Take(), QStringList());
        QVERIFY(!create({}, Proc::PixFmt::None));
        QVERIFY(!create({unit, unit}, Proc::PixFmt::None));
        QVERIFY(!create({{device, nullptr}}, Proc::PixFmt::None));
        QVERIFY(!create({{OrdinaryDevice(), nullptr}}, Proc::PixFmt::None));
        QVERIFY(!create({unit}, Proc::PixFmt::NV12));
        QVERIFY(!create({unit}, Proc::PixFmt::None, "Other"));
        QCOMPARE(log.Take().filter(QRegularExpression("^E ")).size(), 6);
    }

    void invalidArgumentsAreLogged()
    {
        const LogCapture log;
        CreateSession(DeliverUntilStopped)->Start(nullptr);
        const auto mode = CallbackDevice(nullptr).GetModes()[0];
        mode->SetFrameRate({15, 1});
        mode->SetFrameRate({0, 1});
        QCOMPARE(mode->GetFrameRate().numerator, std::int64_t(15));
        QCOMPARE(log.Lines().filter(QRegularExpression("^E ")).size(), 2);
    }

    void startAndStopFromTwoThreadsAlternate()
    {
        const Session session = CreateSession(DeliverUntilStopped);
        const auto observer = std::make_shared<ObserverSpy>();
        const auto startAndStop = [&] {
            for (int i = 0; i < 500; ++i) {
                session->Start(observer);
                session->Stop();
            }
        };
        std::thread other(startAndStop);
        startAndStop();
        other.join();
        QStringList expected;
        while (expected.size() < observer->Calls().size())
            expected += ONE_RUN;
        session->Start(observer);
        QVERIFY(observer->WaitFor(expected + QStringList("started")));
        session->Stop();
        QCOMPARE(observer->Calls(), expected + ONE_RUN);
    }

    // Must be the last function: the process exits while one session runs and the device of another is blocked.
    void processMayExitWhileSessionsRun()
    {
        static const auto observer = std::make_shared<ObserverSpy>();
        static const Session running = CreateSession(DeliverUntilStopped);
        static const Session blocked = CreateSession([](SourceChannel& channel) {
            Barrier().Pass();
            return DeliverUntilStopped(channel);
        });
        running->Start(observer);
        blocked->Start(observer);
        blocked->Stop();
        QVERIFY(observer->WaitFor({"started"}));
    }
};

VX_TEST_MAIN(tst_CaptureEngine)
#include "tst_CaptureEngine.moc"
