#include <UI/Widgets/WebCameraPreviewStream.h>

#include <UI/Common/CatchException.h>
#include <UI/Common/GuiThreadCall.h>
#include <UI/Common/LogSource.h>
#include <UI/Widgets/FrameReaderThread.h>
#include <UI/Widgets/PreviewCapture.h>
#include <UI/Widgets/PreviewFeeder.h>
#include <UI/Widgets/PreviewGate.h>
#include <UI/Widgets/RetrySchedule.h>
#include <UI/Widgets/VideoModeChoice.h>
#include <UI/Widgets/VideoPreviewWidget.h>

#include <Zelkor/Acquis/CaptureFactory.h>

#include <QTimer>

#include <algorithm>
#include <chrono>
#include <exception>
#include <mutex>
#include <utility>

namespace Zelkor::Vx {

namespace {

const UI::Common::LogSource LOG_SOURCE("Lib/UI/Widgets/WebCameraPreviewStream");

using Clock = std::chrono::steady_clock;

} // namespace

/// The state that the stream shares with the engine's threads.
///
/// One mutex guards the state. It is not held during calls of the engine and joins of the reader thread, which prevents
/// deadlocks. Code after such a call therefore checks that its session is still current, which its observer identifies,
/// and that its epoch, which each stop increments, has not ended.
class WebCameraPreviewStream::Impl : public PreviewFeeder, public std::enable_shared_from_this<Impl>
{
public:
    Impl(WebCameraPreviewStream* stream, UI::VideoPreviewWidget* preview);

    void SetDevice(const boost::intrusive_ptr<Acquis::ICaptureDevice>& newDevice, const std::string& settingsName,
                   double newFrameRate);
    void Start();
    void Stop();
    bool Retry();
    void EndFeeding() override;
    void Shutdown();
    boost::intrusive_ptr<Acquis::IDeviceSettings> SettingsHandle() const;

private:
    class Observer;

    struct Session
    {
        boost::intrusive_ptr<Acquis::ICaptureSession> capture;
        std::shared_ptr<Observer> observer;
    };

    void HandleStarted(const Observer* from, const boost::intrusive_ptr<Acquis::IFrameProvider>& provider);
    void HandleError(const Observer* from, int code);
    void HandleStopped(const Observer* from);
    void HandleReadError(const Observer* from, const std::string& what);

    bool IsCurrent(const Observer* observer) const { return session.observer.get() == observer; }
    void BuildSession(unsigned forEpoch);
    void StartSession(const Session& started);
    void StartReaderThread(const Observer* from, Acquis::IFrameProvider& provider);
    void RetryIfCurrent(const Observer* from);
    void EndReaderThread(const std::shared_ptr<FrameReaderThread>& ended);
    void RequestRetry();
    void ArmRetryTimer();
    void RunRetryTimer();

    const boost::intrusive_ptr<Acquis::ICaptureFactory> captureFactory = Acquis::CaptureFactory::Create();
    const std::shared_ptr<PreviewGate> gate;
    QTimer* const retryTimer; ///< a child of the stream; GUI thread only
    UI::Common::GuiThreadCall armRetryTimer;

    mutable std::mutex mutex; ///< guards the members below
    WebCameraPreviewStream* stream;
    boost::intrusive_ptr<Acquis::ICaptureDevice> device;
    boost::intrusive_ptr<Acquis::IVideoCaptureSettings> settings;
    double frameRate = 1.0;
    boost::intrusive_ptr<Acquis::IDeviceSettings> settingsHandle;
    Session session;
    std::shared_ptr<FrameReaderThread> readerThread;
    unsigned epoch = 0;
    RetrySchedule retries;
};

/// Forwards the reports of one session to the stream, if it still exists.
class WebCameraPreviewStream::Impl::Observer : public Acquis::ICaptureSessionObserver
{
public:
    explicit Observer(std::weak_ptr<Impl> impl) : weakImpl(std::move(impl)) {}

    void handleStarted(Acquis::ICaptureSession&, std::int64_t,
                       const boost::intrusive_ptr<Acquis::IFrameProvider>& provider) override
    {
        if (const auto impl = weakImpl.lock())
            impl->HandleStarted(this, provider);
    }

    void handleError(Acquis::ICaptureSession&, int code) override
    {
        if (const auto impl = weakImpl.lock())
            impl->HandleError(this, code);
    }

    void handleStopped() override
    {
        if (const auto impl = weakImpl.lock())
            impl->HandleStopped(this);
    }

    void HandleReadError(const std::string& what)
    {
        if (const auto impl = weakImpl.lock())
            impl->HandleReadError(this, what);
    }

private:
    const std::weak_ptr<Impl> weakImpl;
};

WebCameraPreviewStream::Impl::Impl(WebCameraPreviewStream* stream, UI::VideoPreviewWidget* preview)
    : gate(std::make_shared<PreviewGate>(preview)), retryTimer(new QTimer(stream)),
      armRetryTimer(stream, [this] { ArmRetryTimer(); }), stream(stream)
{
    retryTimer->setTimerType(Qt::PreciseTimer);
    retryTimer->setSingleShot(true);
    QObject::connect(retryTimer, &QTimer::timeout, stream, [this, stream] {
        if (!Retry())
            Q_EMIT stream->WebCameraOpenError();
    });
}

void WebCameraPreviewStream::Impl::SetDevice(const boost::intrusive_ptr<Acquis::ICaptureDevice>& newDevice,
                                             const std::string& settingsName, double newFrameRate)
{
    Stop();
    const VideoModeChoice choice =
        newDevice ? ChooseVideoMode(*newDevice, settingsName, newFrameRate) : VideoModeChoice();
    constexpr char NAME[] = "Zelkor::Vx::WebCameraPreviewStream::Impl::SetDevice";
    if (newDevice && !choice.settings)
        LOG_SOURCE.Error(118, NAME, "device has no usable video mode");
    else if (choice.hasUnusableRates)
        LOG_SOURCE.Error(121, NAME, "frame rate below 1 is ignored");
    if (choice.settings)
        choice.settings->SetFrameRate(choice.rate);

    unsigned forEpoch;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        device = newDevice;
        settings = choice.settings;
        frameRate = choice.frameRate;
        settingsHandle = nullptr;
        forEpoch = epoch;
    }
    BuildSession(forEpoch);
}

void WebCameraPreviewStream::Impl::Start()
{
    Session started;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        retries.Restart();
        started = session;
    }
    StartSession(started);
}

void WebCameraPreviewStream::Impl::Stop()
{
    Session stopped;
    std::shared_ptr<FrameReaderThread> ended;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        ++epoch;
        retries.Cancel();
        std::swap(stopped, session);
        ended = readerThread;
    }
    if (stopped.capture) {
        // Destructors call this function, so it must not throw.
        if (const auto failure = UI::Common::CatchException([&] { stopped.capture->Stop(); }))
            LOG_SOURCE.Error(133, "Zelkor::Vx::WebCameraPreviewStream::Impl::Stop", failure->c_str());
    }
    EndReaderThread(ended);
    gate->Reset();
}

/// Called when the delay of a retry has ended: creates and starts another session. Returns false after the last retry.
/// GUI thread.
bool WebCameraPreviewStream::Impl::Retry()
{
    Session failed;
    std::shared_ptr<FrameReaderThread> ended;
    unsigned forEpoch;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        const auto step = retries.Take(Clock::now());
        if (step == RetrySchedule::Step::GiveUp)
            return false;
        if (step == RetrySchedule::Step::Wait) {
            RunRetryTimer();
            return true;
        }
        std::swap(failed, session);
        ended = readerThread;
        forEpoch = epoch;
    }
    EndReaderThread(ended);
    failed = Session();
    gate->Reset();
    // The caller is Qt's event loop, so an exception counts as one more failed start.
    if (const auto failure = UI::Common::CatchException([&] { BuildSession(forEpoch); }))
        LOG_SOURCE.Error(150, "Zelkor::Vx::WebCameraPreviewStream::Impl::BuildSession", failure->c_str());

    Session started;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (epoch != forEpoch)
            return true;
        started = session;
        // Without a session there is no error report that would schedule the next retry.
        if (!started.capture)
            RequestRetry();
    }
    if (const auto failure = UI::Common::CatchException([&] { StartSession(started); })) {
        LOG_SOURCE.Error(158, "Zelkor::Vx::WebCameraPreviewStream::Impl::StartSession", failure->c_str());
        RetryIfCurrent(started.observer.get());
    }
    return true;
}

void WebCameraPreviewStream::Impl::ArmRetryTimer()
{
    const std::lock_guard<std::mutex> lock(mutex);
    RunRetryTimer();
}

void WebCameraPreviewStream::Impl::EndFeeding()
{
    gate->Close();
    Stop();
}

void WebCameraPreviewStream::Impl::Shutdown()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        stream = nullptr;
    }
    armRetryTimer.Cancel();
    EndFeeding();
}

boost::intrusive_ptr<Acquis::IDeviceSettings> WebCameraPreviewStream::Impl::SettingsHandle() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return settingsHandle;
}

// Treats an exception as an error of the session, since the caller is the engine.
void WebCameraPreviewStream::Impl::HandleStarted(const Observer* from,
                                                 const boost::intrusive_ptr<Acquis::IFrameProvider>& provider)
{
    std::shared_ptr<FrameReaderThread> previous;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (!IsCurrent(from) || !provider)
            return;
        previous = readerThread;
    }
    EndReaderThread(previous);
    if (const auto failure = UI::Common::CatchException([&] { StartReaderThread(from, *provider); })) {
        LOG_SOURCE.Error(196, "Zelkor::Vx::WebCameraPreviewStream::Impl::handleStarted", failure->c_str());
        RetryIfCurrent(from);
    }
}

void WebCameraPreviewStream::Impl::StartReaderThread(const Observer* from, Acquis::IFrameProvider& provider)
{
    const auto output = PreviewCapture::CreateOutput(provider);
    if (!output)
        return;
    auto reader = output->GetFrameReader();

    const std::lock_guard<std::mutex> lock(mutex);
    if (!IsCurrent(from) || readerThread)
        return;
    // Started under the lock, so that other threads never see a reader thread that they cannot join.
    const auto onFailure = [observer = session.observer](const std::string& what) { observer->HandleReadError(what); };
    auto started = std::make_shared<FrameReaderThread>(gate, std::move(reader), frameRate, onFailure);
    FrameReaderThread::Start(started);
    readerThread = std::move(started);
}

void WebCameraPreviewStream::Impl::HandleError(const Observer* from, int code)
{
    LOG_SOURCE.Error(212, "Zelkor::Vx::WebCameraPreviewStream::Impl::handleError",
                     "Cannot create preview stream. Error code: ", code);
    RetryIfCurrent(from);
}

void WebCameraPreviewStream::Impl::HandleReadError(const Observer* from, const std::string& what)
{
    LOG_SOURCE.Error(219, "Zelkor::Vx::WebCameraPreviewStream::Impl::HandleBrokenPump", what.c_str());
    RetryIfCurrent(from);
}

void WebCameraPreviewStream::Impl::HandleStopped(const Observer* from)
{
    std::shared_ptr<FrameReaderThread> ended;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (!IsCurrent(from))
            return;
        ended = readerThread;
    }
    EndReaderThread(ended);
    // A new session needs the lock to start its reader thread, so its picture is not cleared.
    const std::lock_guard<std::mutex> lock(mutex);
    if (IsCurrent(from))
        gate->Reset();
}

void WebCameraPreviewStream::Impl::BuildSession(unsigned forEpoch)
{
    boost::intrusive_ptr<Acquis::ICaptureDevice> sessionDevice;
    boost::intrusive_ptr<Acquis::IVideoCaptureSettings> sessionSettings;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        sessionDevice = device;
        sessionSettings = settings;
    }
    Session built;
    built.capture = PreviewCapture::CreateSession(*captureFactory, sessionDevice, sessionSettings);
    std::vector<boost::intrusive_ptr<Acquis::IDeviceSettings>> handles;
    if (built.capture) {
        built.capture->GetDeviceSettings(handles);
        built.observer = std::make_shared<Observer>(weak_from_this());
    }
    // `built` releases an outdated session after the lock.
    const std::lock_guard<std::mutex> lock(mutex);
    if (epoch != forEpoch)
        return;
    std::swap(session, built);
    settingsHandle = handles.empty() ? nullptr : handles.front();
}

void WebCameraPreviewStream::Impl::StartSession(const Session& started)
{
    if (!started.capture)
        return;
    started.capture->Start(started.observer);
    bool stoppedMeanwhile;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        stoppedMeanwhile = !IsCurrent(started.observer.get());
    }
    if (stoppedMeanwhile)
        started.capture->Stop();
}

/// Stops a reader thread and clears the member, unless another thread has replaced it.
void WebCameraPreviewStream::Impl::EndReaderThread(const std::shared_ptr<FrameReaderThread>& ended)
{
    if (!ended)
        return;
    ended->Stop();
    const std::lock_guard<std::mutex> lock(mutex);
    if (readerThread == ended)
        readerThread = nullptr;
}

/// Schedules a retry for a failed session, unless another session has replaced it.
void WebCameraPreviewStream::Impl::RetryIfCurrent(const Observer* from)
{
    const std::lock_guard<std::mutex> lock(mutex);
    if (IsCurrent(from))
        RequestRetry();
}

/// Schedules a retry. Call it under the lock.
void WebCameraPreviewStream::Impl::RequestRetry()
{
    if (stream && retries.Request(Clock::now()))
        armRetryTimer.Request();
}

/// Starts the timer for the pending retry. An event filter that swallows its event delays the retry but does not
/// prevent it, since QTimer then fires again. GUI thread, under the lock.
void WebCameraPreviewStream::Impl::RunRetryTimer()
{
    if (const auto due = retries.Due()) {
        const auto delay = std::chrono::ceil<std::chrono::milliseconds>(*due - Clock::now());
        retryTimer->start(std::max(delay, std::chrono::milliseconds(0)));
    }
}

WebCameraPreviewStream::WebCameraPreviewStream(UI::VideoPreviewWidget* preview)
    : QObject(preview), impl(std::make_shared<Impl>(this, preview))
{
    if (preview)
        PreviewFeeder::Register(preview, impl);
}

WebCameraPreviewStream::~WebCameraPreviewStream()
{
    impl->Shutdown();
}

void WebCameraPreviewStream::SetDevice(const boost::intrusive_ptr<Acquis::ICaptureDevice>& device,
                                       const QString& settingsName, double frameRate)
{
    impl->SetDevice(device, settingsName.toStdString(), frameRate);
}

void WebCameraPreviewStream::StartStream()
{
    impl->Start();
}

void WebCameraPreviewStream::StopStream()
{
    impl->Stop();
}

bool WebCameraPreviewStream::IsWebcameraSettingsAvailable() const
{
    return impl->SettingsHandle() != nullptr;
}

void WebCameraPreviewStream::ShowCurrentDeviceSettings()
{
    if (const auto handle = impl->SettingsHandle())
        handle->ShowSettingsDialog();
}

} // namespace Zelkor::Vx
