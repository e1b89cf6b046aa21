#pragma once

#include <Zelkor/Acquis/CaptureFactory.h>
#include <Zelkor/Core/CoreManager.h>
#include <Zelkor/Proc/SettingsColorspaceConverter.h>
#include <Zelkor/StandIn/CaptureDevice.h>
#include <Zelkor/Util/ImageUtils.h>

#include <QImage>
#include <QStringList>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace Support {

using namespace Zelkor;

/// Writes down what a session tells.
class SessionRecorder : public Acquis::ICaptureSessionObserver
{
public:
    /// Called from within each observer call, after that was written down. There is no session in `handleStopped`.
    std::function<void(const QString& call, Acquis::ICaptureSession* session)> onCall = [](auto&, auto*) {};

    /// "started", "error 1", "stopped", in order, and "overlap" before one that came while another was running.
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

    boost::intrusive_ptr<Acquis::ICaptureOutput> CreateOutput() const
    {
        boost::intrusive_ptr<Acquis::ICaptureOutput> output;
        provider->CreateOutput(output, "test", 0);
        return output;
    }

    // What came with "started". To be read when that has been waited for.
    std::int64_t startTime = 0;
    boost::intrusive_ptr<Acquis::IFrameProvider> provider;

    void handleStarted(Acquis::ICaptureSession& session, std::int64_t time,
                       const boost::intrusive_ptr<Acquis::IFrameProvider>& newProvider) override
    {
        startTime = time;
        provider = newProvider;
        Note(QStringLiteral("started"), &session);
    }

    void handleError(Acquis::ICaptureSession& session, int code) override
    {
        Note(QStringLiteral("error %1").arg(code), &session);
    }

    void handleStopped() override { Note(QStringLiteral("stopped"), nullptr); }

private:
    void Note(const QString& call, Acquis::ICaptureSession* session)
    {
        std::unique_lock<std::mutex> lock(mutex);
        if (running++ > 0)
            calls += QStringLiteral("overlap");
        calls += call;
        lock.unlock();
        changed.notify_all();
        onCall(call, session);
        lock.lock();
        --running;
    }

    mutable std::mutex mutex; ///< guards all that follows
    mutable std::condition_variable changed;
    QStringList calls;
    int running = 0;
};

/// A stopped session of the engine for a device in one of its modes.
inline boost::intrusive_ptr<Acquis::ICaptureSession>
CreateSession(const boost::intrusive_ptr<StandIn::CaptureDevice>& device, std::size_t mode = 0,
              const std::shared_ptr<const Time::IChronometer>& chronometer = nullptr)
{
    boost::intrusive_ptr<Acquis::ICaptureSession> session;
    Acquis::CaptureFactory::Create()->CreateSession(
        session, {{{device, device->GetModes()[mode]}}, nullptr, chronometer, Proc::PixFmt::None}, "Default");
    return session;
}

inline std::shared_ptr<SessionRecorder> Start(const boost::intrusive_ptr<Acquis::ICaptureSession>& session)
{
    const auto recorder = std::make_shared<SessionRecorder>();
    session->Start(recorder);
    return recorder;
}

inline boost::intrusive_ptr<StandIn::VideoFrame> ReadFrame(Acquis::ICaptureOutput& output)
{
    boost::intrusive_ptr<Proc::IDataVideo> frame;
    output.GetFrameReader()->ReadLatestFrame(frame);
    return dynamic_cast<StandIn::VideoFrame*>(frame.get());
}

/// What the frame shows.
inline QImage ImageOf(boost::intrusive_ptr<Proc::IDataVideo> frame)
{
    boost::intrusive_ptr<Proc::IEffect> converter;
    Core::CoreManager::Instance().GetEffectFactory()->CreateEffect(
        converter, Proc::SettingsColorspaceConverter::CLASS_ID, "Default", nullptr);
    converter->Process(frame);
    return Util::ImageUtils().FrameToImage(frame).copy();
}

} // namespace Support
