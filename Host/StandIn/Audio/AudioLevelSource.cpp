#include <Zelkor/StandIn/AudioLevelSource.h>

#include <StandIn/Audio/AudioLevelWorker.h>

#include <QTimer>

#include <algorithm>
#include <mutex>
#include <optional>
#include <utility>

namespace Zelkor::StandIn {

namespace {

using Peak = AudioLevelWorker::Peak;

/// The highest peak that a worker has measured since the last `Take`.
class Mailbox
{
public:
    void Put(const Peak& newPeak)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        const double previous = peak ? peak->decibels : AudioLevelSource::SILENCE_DB;
        // A value that is not a number counts as silence.
        const double highest = newPeak.decibels > previous ? newPeak.decibels : previous;
        peak = {std::min(highest, 0.0), newPeak.isTestSignal};
    }

    std::optional<Peak> Take()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return std::exchange(peak, std::nullopt);
    }

private:
    std::mutex mutex;
    std::optional<Peak> peak;
};

} // namespace

struct AudioLevelSource::Impl
{
    Input input;
    std::shared_ptr<AudioLevelWorker> worker; ///< null while the source is stopped
    std::shared_ptr<Mailbox> mailbox;         ///< filled by the worker
    bool isTestSignal = false;
    QTimer timer; ///< polls the mailbox: an event filter can drop a posted event for good, but not a timer
};

AudioLevelSource::AudioLevelSource(Input input, QObject* parent) : QObject(parent), impl(std::make_unique<Impl>())
{
    impl->input = input;
    impl->timer.setTimerType(Qt::PreciseTimer);
    impl->timer.setInterval(AudioLevelWorker::INTERVAL);
    connect(&impl->timer, &QTimer::timeout, this, &AudioLevelSource::EmitPeak);
}

AudioLevelSource::~AudioLevelSource()
{
    Stop();
}

void AudioLevelSource::Start()
{
    if (impl->worker)
        return;
    impl->mailbox = std::make_shared<Mailbox>();
    impl->worker = std::make_shared<AudioLevelWorker>(
        impl->input == Input::Microphone, [mailbox = impl->mailbox](const Peak& peak) { mailbox->Put(peak); });
    impl->worker->Start();
    impl->timer.start();
}

void AudioLevelSource::Stop()
{
    if (!impl->worker)
        return;
    impl->worker->RequestStop();
    impl->worker = nullptr;
    impl->timer.stop();
}

bool AudioLevelSource::IsTestSignal() const
{
    return impl->isTestSignal;
}

void AudioLevelSource::EmitPeak()
{
    const std::optional<Peak> peak = impl->mailbox->Take();
    if (!peak)
        return;
    impl->isTestSignal = peak->isTestSignal;
    Q_EMIT PeakMeasured(peak->decibels);
}

} // namespace Zelkor::StandIn
