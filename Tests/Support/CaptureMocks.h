#pragma once

#include <Zelkor/Acquis/CaptureFactory.h>
#include <Zelkor/Core/CoreManager.h>
#include <Zelkor/Proc/SettingsColorspaceConverter.h>
#include <Zelkor/StandIn/CaptureDevice.h>
#include <Zelkor/Util/ImageUtils.h>

#include <QImage>
#include <QStringList>
#include <QtTest>

#include <atomic>
#include <functional>
#include <mutex>

namespace Support {

using namespace Zelkor;

/// Records the observer calls of a session.
class ObserverSpy : public Acquis::ICaptureSessionObserver
{
public:
    /// Called within each observer call, after it was recorded. `session` is null in `handleStopped`.
    std::function<void(const QString& call, Acquis::ICaptureSession* session)> onCall = [](auto&, auto*) {};

    /// "started", "error 1" or "stopped" for each call, with the prefix "overlapping" if another call was running.
    QStringList Calls() const
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return calls;
    }

    bool WaitFor(const QStringList& expected) const
    {
        return QTest::qWaitFor([&] { return Calls() == expected; }, 20000);
    }

    // The arguments of "started". Wait for that call before you use them.
    std::int64_t startTime = 0;
    boost::intrusive_ptr<Acquis::IFrameProvider> provider;

    boost::intrusive_ptr<Acquis::ICaptureOutput> CreateOutput() const
    {
        boost::intrusive_ptr<Acquis::ICaptureOutput> output;
        provider->CreateOutput(output, "test", 0);
        return output;
    }

    void handleStarted(Acquis::ICaptureSession& session, std::int64_t time,
                       const boost::intrusive_ptr<Acquis::IFrameProvider>& newProvider) override
    {
        startTime = time;
        provider = newProvider;
        Record(QStringLiteral("started"), &session);
    }

    void handleError(Acquis::ICaptureSession& session, int code) override
    {
        Record(QStringLiteral("error %1").arg(code), &session);
    }

    void handleStopped() override { Record(QStringLiteral("stopped"), nullptr); }

private:
    void Record(const QString& call, Acquis::ICaptureSession* session)
    {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            calls += running++ > 0 ? "overlapping " + call : call;
        }
        onCall(call, session);
        --running;
    }

    mutable std::mutex mutex; ///< guards `calls`
    QStringList calls;
    std::atomic<int> running{0};
};

/// A device of the stand-in whose sources call a function.
class CallbackDevice : public StandIn::CaptureDevice
{
public:
    using Run = std::function<StandIn::CaptureError(StandIn::SourceChannel&)>;

    /// The device delivers 4×2 pixels in `GRAY8`. Without `run` it creates no sources, like a device that was
    /// unplugged.
    explicit CallbackDevice(Run run)
        : CaptureDevice(Kind::Other, "callback", "Callback",
                        {new StandIn::VideoMode("4×2", {Proc::PixFmt::GRAY8, 4, 2}, {{15, 1}, {30, 1}})}),
          run(std::move(run))
    {}

    std::unique_ptr<StandIn::CaptureSource> CreateSource(const StandIn::VideoMode&) const override
    {
        struct Source : StandIn::CaptureSource
        {
            explicit Source(const CallbackDevice::Run& run) : run(run) {}
            StandIn::CaptureError Run(StandIn::SourceChannel& channel) override { return run(channel); }
            const CallbackDevice::Run run;
        };
        return run ? std::make_unique<Source>(run) : nullptr;
    }

private:
    const Run run;
};

/// Creates a session that captures a device in one of its modes.
inline boost::intrusive_ptr<Acquis::ICaptureSession>
CreateSession(const boost::intrusive_ptr<StandIn::CaptureDevice>& device, std::size_t mode = 0,
              const std::shared_ptr<const Time::IChronometer>& chronometer = nullptr)
{
    boost::intrusive_ptr<Acquis::ICaptureSession> session;
    Acquis::CaptureFactory::Create()->CreateSession(
        session, {{{device, device->GetModes()[mode]}}, nullptr, chronometer, Proc::PixFmt::None}, "Default");
    return session;
}

inline std::shared_ptr<ObserverSpy> Start(const boost::intrusive_ptr<Acquis::ICaptureSession>& session)
{
    const auto observer = std::make_shared<ObserverSpy>();
    session->Start(observer);
    return observer;
}

inline boost::intrusive_ptr<StandIn::VideoFrame> ReadFrame(Acquis::ICaptureOutput& output)
{
    boost::intrusive_ptr<Proc::IDataVideo> frame;
    output.GetFrameReader()->ReadLatestFrame(frame);
    return dynamic_cast<StandIn::VideoFrame*>(frame.get());
}

/// Returns the picture of a frame in any format.
inline QImage ImageOf(boost::intrusive_ptr<Proc::IDataVideo> frame)
{
    boost::intrusive_ptr<Proc::IEffect> converter;
    Core::CoreManager::Instance().GetEffectFactory()->CreateEffect(
        converter, Proc::SettingsColorspaceConverter::CLASS_ID, "Default", nullptr);
    converter->Process(frame);
    return Util::ImageUtils().FrameToImage(frame).copy();
}

} // namespace Support
