#include <Support/CaptureMocks.h>
#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <Zelkor/StandIn/CaptureEngine.h>

#include <QDeadlineTimer>
#include <QSemaphore>

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

constexpr std::chrono::milliseconds LIMIT(20000);
constexpr int AT_ONCE = 1000; // milliseconds; much shorter than the blocked devices of these tests
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

} // namespace

Q_DECLARE_METATYPE(Run)

class tst_CaptureEngine : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        observer = std::make_shared<ObserverSpy>();
    }

    void cleanup()
    {
        QVERIFY(WaitForEngineIdle(LIMIT));
        QCOMPARE(observer.use_count(), 1L);
        TestCase::cleanup();
    }

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
        const Session session = Start(run);
        QVERIFY(observer->WaitFor(calls));
        QVERIFY(WaitForEngineIdle(LIMIT));
        session->Stop();
        session->Start(observer);
        QVERIFY(observer->WaitFor(calls + calls));
    }

    void observerIsCalledOnceOnAnEngineThread()
    {
        const Session session = CreateSession(DeliverUntilStopped);
        std::atomic<int> wrongCalls{0};
        observer->onCall = [&, caller = std::this_thread::get_id()](auto& call, auto* sender) {
            wrongCalls += std::this_thread::get_id() == caller;
            wrongCalls += sender != (call == "started" ? session.get() : nullptr);
        };
        session->Start(observer);
        QVERIFY(observer->WaitFor({"started"}));
        const auto ignored = Support::Start(session); // it runs already
        session->Stop();
        session->Stop();
        QCOMPARE(observer->Calls(), ONE_RUN);
        QCOMPARE(ignored->Calls(), QStringList());
        QCOMPARE(int(wrongCalls), 0);
        QCOMPARE(session->GetRefCount(), 1);
    }

    void stopDoesNotWaitForABlockedDevice_data()
    {
        QTest::addColumn<bool>("isClosing");
        QTest::newRow("opening") << false;
        QTest::newRow("closing") << true;
    }

    void stopDoesNotWaitForABlockedDevice()
    {
        QFETCH(bool, isClosing);
        const Session session = Start([this, isClosing](SourceChannel& channel) {
            if (isClosing)
                DeliverUntilStopped(channel);
            Block();
            return Deliver(channel, 2, CaptureError::Failed);
        });
        QVERIFY(isClosing ? observer->WaitFor({"started"}) : WaitUntilBlocked());
        const auto output = isClosing ? observer->CreateOutput() : nullptr;
        const QDeadlineTimer deadline(AT_ONCE);
        session->Stop();
        QVERIFY(!deadline.hasExpired());
        QVERIFY(!isClosing || WaitUntilBlocked());
        QCOMPARE(observer.use_count(), 1L);
        QVERIFY(!WaitForEngineIdle(std::chrono::milliseconds(20)));
        unblocked.release();
        QVERIFY(WaitForEngineIdle(LIMIT));
        QVERIFY(!output || !ReadFrame(*output));
        QCOMPARE(observer->Calls(), isClosing ? ONE_RUN : QStringList());
    }

    void stopWaitsForARunningObserverCall()
    {
        observer->onCall = [this](auto& call, auto*) {
            if (call == "started")
                Block();
        };
        const Session session = Start(DeliverUntilStopped);
        QVERIFY(WaitUntilBlocked());
        const auto stopped = std::async(std::launch::async, [&] { session->Stop(); });
        QCOMPARE(stopped.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
        unblocked.release();
        QCOMPARE(stopped.wait_for(LIMIT), std::future_status::ready);
        QCOMPARE(observer->Calls(), ONE_RUN);
    }

    void releaseInAnObserverCallStops()
    {
        Session session = CreateSession(DeliverUntilStopped);
        observer->onCall = [&](auto&, auto*) { session = nullptr; };
        session->Start(observer);
        QVERIFY(observer->WaitFor(ONE_RUN));
        QVERIFY(WaitForEngineIdle(LIMIT));
        QCOMPARE(observer->Calls(), ONE_RUN);
    }

    void outputReadsTheNewestFrameInItsOwnTime()
    {
        struct Clock : Time::IChronometer
        {
            std::int64_t Now() const override { return now += 100; }
            mutable std::atomic<std::int64_t> now{0};
        };
        struct Shift : Acquis::TimeShift
        {
            std::int64_t MapTime(std::int64_t time) const override { return time + 40; }
        };
        const auto twoFrames = [](SourceChannel& channel) {
            Deliver(channel, 1);
            channel.Deliver(nullptr);
            return DeliverUntilStopped(channel);
        };
        const Session session = Start(twoFrames, std::make_shared<Clock>());
        QVERIFY(observer->WaitFor({"started"}));
        QCOMPARE(observer->startTime, std::int64_t(100));

        const auto plain = observer->CreateOutput();
        const auto shifted = observer->CreateOutput();
        shifted->SetTimeShift(new Shift);
        QTRY_COMPARE(ReadFrame(*plain)->GetTime(), std::int64_t(200));
        const auto frame = ReadFrame(*plain);
        const auto later = ReadFrame(*shifted);
        QCOMPARE(later->GetTime(), std::int64_t(240));
        QCOMPARE(later->GetPlanes()[0].data, frame->GetPlanes()[0].data);
        QCOMPARE(ReadFrame(*shifted), later);
        QCOMPARE(ReadFrame(*plain), frame);
        shifted->SetTimeShift(nullptr);
        QCOMPARE(ReadFrame(*shifted), frame);
        session->Stop();
        QVERIFY(!ReadFrame(*plain));
        QCOMPARE(frame->GetRefCount(), 1);
    }

    void invalidArgumentsAreLogged()
    {
        const boost::intrusive_ptr<CaptureDevice> device(new CallbackDevice(DeliverUntilStopped));
        const auto mode = device->GetModes()[0];
        const Unit unit(device, mode);
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
        QVERIFY(!create({unit}, Proc::PixFmt::NV12));
        QVERIFY(!create({unit}, Proc::PixFmt::None, "Other"));
        CreateSession(DeliverUntilStopped)->Start(nullptr);
        mode->SetFrameRate({15, 1});
        mode->SetFrameRate({0, 1});
        QCOMPARE(mode->GetFrameRate().numerator, std::int64_t(15));
        QCOMPARE(log.Take().filter(QRegularExpression("^E ")).size(), 6);
    }

    void startAndStopFromTwoThreadsAlternate()
    {
        const Session session = CreateSession(DeliverUntilStopped);
        const auto startAndStop = [&] {
            for (int i = 0; i < 500; ++i) {
                session->Start(observer);
                session->Stop();
            }
        };
        std::thread other(startAndStop);
        startAndStop();
        other.join();
        session->Start(observer);
        QTRY_VERIFY(observer->Calls().endsWith("started"));
        session->Stop();
        QCOMPARE(observer->Calls().join(' ').remove("started stopped").trimmed(), QString());
    }

private:
    Session Start(Run run, const std::shared_ptr<const Time::IChronometer>& chronometer = nullptr)
    {
        const Session session = CreateSession(std::move(run), chronometer);
        session->Start(observer);
        return session;
    }

    void Block()
    {
        blocked.release();
        unblocked.acquire();
    }

    bool WaitUntilBlocked() { return blocked.tryAcquire(1, int(LIMIT.count())); }

    std::shared_ptr<ObserverSpy> observer;
    QSemaphore blocked;   ///< available when a thread waits for `unblocked`
    QSemaphore unblocked; ///< ends `Block`
};

VX_TEST_MAIN(tst_CaptureEngine)
#include "tst_CaptureEngine.moc"
