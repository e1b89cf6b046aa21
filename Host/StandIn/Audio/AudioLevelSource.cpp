#include <Zelkor/StandIn/AudioLevelSource.h>

#include <StandIn/Audio/AudioLevelRun.h>

#include <QTimer>

#include <algorithm>
#include <mutex>
#include <optional>
#include <utility>

namespace Zelkor::StandIn {

namespace {

using Peak = AudioLevelRun::Peak;

/// The highest peak that the thread of one run has measured since the source looked last.
class Mailbox
{
public:
    void Put(const Peak& newPeak)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        const double before = peak ? peak->decibels : AudioLevelSource::SILENCE_DB;
        peak = {std::max(newPeak.decibels, before), newPeak.isTestSignal};
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
    std::shared_ptr<AudioLevelRun> run; ///< null while the source does not run
    std::shared_ptr<Mailbox> mailbox;   ///< of this run
    bool isTestSignal = false;
    QTimer timer; ///< looks into the mailbox; a posted event could be swallowed, a timer's comes again
};

AudioLevelSource::AudioLevelSource(Input input, QObject* parent) : QObject(parent), impl(std::make_unique<Impl>())
{
    impl->input = input;
    impl->timer.setTimerType(Qt::PreciseTimer);
    impl->timer.setInterval(AudioLevelRun::INTERVAL);
    connect(&impl->timer, &QTimer::timeout, this, &AudioLevelSource::EmitPeak);
}

AudioLevelSource::~AudioLevelSource()
{
    Stop();
}

void AudioLevelSource::Start()
{
    if (impl->run)
        return;
    impl->mailbox = std::make_shared<Mailbox>();
    impl->run = std::make_shared<AudioLevelRun>(impl->input == Input::Microphone,
                                                [mailbox = impl->mailbox](const Peak& peak) { mailbox->Put(peak); });
    impl->run->Start();
    impl->timer.start();
}

void AudioLevelSource::Stop()
{
    if (!impl->run)
        return;
    impl->run->End();
    impl->run = nullptr;
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
