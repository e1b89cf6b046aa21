#include <Zelkor/StandIn/AudioLevelSource.h>

#include <Acquis/AudioLevelRun.h>

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <mutex>
#include <utility>

namespace Zelkor::StandIn {

namespace {

using Peak = AudioLevelRun::Peak;

/// The way from the thread of one run to the source, which may die at any time. The source is told by an event to look,
/// by at most one however long it does not.
struct Mailbox
{
    void Put(const Peak& newPeak)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        const double before = isFull ? peak.decibels : AudioLevelSource::SILENCE_DB;
        peak = {std::max(newPeak.decibels, before), newPeak.isTestSignal};
        if (!std::exchange(isFull, true) && source)
            QCoreApplication::postEvent(source, new QEvent(QEvent::User));
    }

    bool Take(Peak& taken)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        taken = peak;
        return std::exchange(isFull, false);
    }

    void Close()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        source = nullptr;
    }

    std::mutex mutex; ///< guards all that follows
    AudioLevelSource* source = nullptr;
    Peak peak;
    bool isFull = false;
};

} // namespace

struct AudioLevelSource::Impl
{
    Input input;
    std::shared_ptr<AudioLevelRun> run; ///< null while the source does not run
    std::shared_ptr<Mailbox> mailbox;   ///< of this run
    bool isTestSignal = false;
};

AudioLevelSource::AudioLevelSource(Input input, QObject* parent) : QObject(parent), impl(std::make_unique<Impl>())
{
    impl->input = input;
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
    impl->mailbox->source = this;
    impl->run = std::make_shared<AudioLevelRun>(impl->input == Input::Microphone,
                                                [mailbox = impl->mailbox](const Peak& peak) { mailbox->Put(peak); });
    impl->run->Start();
}

void AudioLevelSource::Stop()
{
    if (!impl->run)
        return;
    impl->run->End();
    impl->run = nullptr;
    impl->mailbox->Close();
}

bool AudioLevelSource::IsTestSignal() const
{
    return impl->isTestSignal;
}

void AudioLevelSource::customEvent(QEvent*)
{
    // The event of a run that was stopped finds nothing, or what the next run has put there already.
    Peak peak;
    if (!impl->run || !impl->mailbox->Take(peak))
        return;
    impl->isTestSignal = peak.isTestSignal;
    Q_EMIT PeakMeasured(peak.decibels);
}

} // namespace Zelkor::StandIn
