#pragma once

#include <Zelkor/Acquis/CaptureFactory.h>
#include <Zelkor/Core/CoreManager.h>
#include <Zelkor/Proc/SettingsColorspaceConverter.h>
#include <Zelkor/StandIn/CaptureDevice.h>
#include <Zelkor/Util/ImageUtils.h>

#include <QImage>
#include <QStringList>

#include <atomic>
#include <chrono>
#include <condition_variable>
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
        std::unique_lock<std::mutex> lock(mutex);
        return changed.wait_for(lock, std::chrono::seconds(20), [&] { return calls == expected; });
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
        changed.notify_all();
        onCall(call, session);
        --running;
    }

    mutable std::mutex mutex; ///< guards `calls`
    mutable std::condition_variable changed;
    QStringList calls;
    std::atomic<int> running{0};
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
