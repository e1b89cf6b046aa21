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
#include <thread>

namespace Support {

using namespace Zelkor;

/// Writes down what a session tells, and notices calls that overlap.
class SessionRecorder : public Acquis::ICaptureSessionObserver
{
public:
    using Frame = boost::intrusive_ptr<StandIn::VideoFrame>;

    /// Called from within the observer calls, after the call was written down.
    std::function<void(Acquis::ICaptureSession&)> onStarted = [](auto&) {};
    std::function<void(Acquis::ICaptureSession&)> onError = [](auto&) {};
    std::function<void()> onStopped = [] {};

    /// "started", "error 1", "stopped", in order.
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

    bool Overlapped() const
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return overlapped;
    }

    std::int64_t StartTime() const
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return startTime;
    }

    boost::intrusive_ptr<Acquis::ICaptureOutput> CreateOutput() const
    {
        boost::intrusive_ptr<Acquis::IFrameProvider> current;
        {
            const std::lock_guard<std::mutex> lock(mutex);
            current = provider;
        }
        boost::intrusive_ptr<Acquis::ICaptureOutput> output;
        if (current)
            current->CreateOutput(output, "test", 0);
        return output;
    }

    void handleStarted(Acquis::ICaptureSession& session, std::int64_t time,
                       const boost::intrusive_ptr<Acquis::IFrameProvider>& newProvider) override
    {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            startTime = time;
            provider = newProvider;
        }
        Note(QStringLiteral("started"), [&] { onStarted(session); });
    }

    void handleError(Acquis::ICaptureSession& session, int code) override
    {
        Note(QStringLiteral("error %1").arg(code), [&] { onError(session); });
    }

    void handleStopped() override { Note(QStringLiteral("stopped"), onStopped); }

private:
    void Note(const QString& call, const std::function<void()>& action)
    {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            overlapped |= running++ > 0;
            calls += call;
        }
        changed.notify_all();
        action();
        const std::lock_guard<std::mutex> lock(mutex);
        --running;
    }

    mutable std::mutex mutex; ///< guards all that follows
    mutable std::condition_variable changed;
    QStringList calls;
    int running = 0;
    bool overlapped = false;
    std::int64_t startTime = 0;
    boost::intrusive_ptr<Acquis::IFrameProvider> provider;
};

/// A stopped session of the engine for a device in one of its modes.
inline boost::intrusive_ptr<Acquis::ICaptureSession>
CreateSession(const boost::intrusive_ptr<StandIn::CaptureDevice>& device,
              const boost::intrusive_ptr<StandIn::VideoMode>& mode,
              const std::shared_ptr<const Time::IChronometer>& chronometer = nullptr)
{
    const Acquis::CaptureSessionInitializer initializer({{device, mode}}, nullptr, chronometer, Proc::PixFmt::None);
    boost::intrusive_ptr<Acquis::ICaptureSession> session;
    Acquis::CaptureFactory::Create()->CreateSession(session, initializer, "Default");
    return session;
}

inline SessionRecorder::Frame ReadFrame(Acquis::ICaptureOutput& output)
{
    boost::intrusive_ptr<Proc::IDataVideo> frame;
    output.GetFrameReader()->ReadLatestFrame(frame);
    return dynamic_cast<StandIn::VideoFrame*>(frame.get());
}

/// What the frame shows.
inline QImage ImageOf(const SessionRecorder::Frame& frame)
{
    boost::intrusive_ptr<Proc::IEffect> converter;
    Core::CoreManager::Instance().GetEffectFactory()->CreateEffect(
        converter, Proc::SettingsColorspaceConverter::CLASS_ID, "Default", nullptr);
    boost::intrusive_ptr<Proc::IDataVideo> picture = frame;
    converter->Process(picture);
    return Util::ImageUtils().FrameToImage(picture).copy();
}

} // namespace Support
