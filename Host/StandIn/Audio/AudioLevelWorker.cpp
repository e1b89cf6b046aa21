#include <StandIn/Audio/AudioLevelWorker.h>

#include <StandIn/Capture/ThreadGroup.h>

#if defined(VX_WITH_GSTREAMER)
#include <StandIn/GStreamer/GStreamerFrames.h>
#include <StandIn/GStreamer/MicrophoneLevel.h>
#endif

#include <glog/logging.h>

#include <chrono>
#include <cmath>
#include <system_error>

namespace Zelkor::StandIn {

namespace {

using Clock = std::chrono::steady_clock;

constexpr double PI = 3.14159265358979323846;

// Phrases of 2.8 s with a pause between them, each a series of syllables of varying loudness.
double SpeechPeak(double seconds)
{
    constexpr double PHRASE = 3.7;
    constexpr double SPEAKING = 2.8;
    constexpr double SYLLABLES_PER_SECOND = 4.3;
    constexpr double BACKGROUND_DB = -55;
    constexpr double LOUDEST_DB = -6;
    if (std::fmod(seconds, PHRASE) > SPEAKING)
        return BACKGROUND_DB;
    const double syllable = std::fabs(std::sin(PI * SYLLABLES_PER_SECOND * seconds));
    const double weight = 0.75 + 0.15 * std::sin(1.9 * seconds) + 0.1 * std::sin(7.3 * seconds);
    return BACKGROUND_DB + (LOUDEST_DB - BACKGROUND_DB) * weight * (0.5 + 0.5 * syllable);
}

} // namespace

void AudioLevelWorker::Start()
{
    const auto self = shared_from_this();
    try {
        ThreadGroup::ForSessions().Spawn([self] { self->Run(); }, [self] { self->RequestStop(); });
    } catch (const std::system_error& error) {
        LOG(ERROR) << "No thread to measure levels: " << error.what();
    }
}

void AudioLevelWorker::RequestStop()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isStopping = true;
    }
    changed.notify_all();
}

#if defined(VX_WITH_GSTREAMER)

void AudioLevelWorker::Run()
{
    if (withMicrophone && LoadGStreamer()) {
        for (const char* element : MicrophoneLevel::Elements()) {
            if (RunMicrophone(element))
                return;
        }
    }
    RunTestSignal();
}

/// Returns true when the worker was stopped, false when this microphone cannot be opened or has failed.
bool AudioLevelWorker::RunMicrophone(const char* element)
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (isStopping)
            return true;
        hasFailed = false;
    }
    const auto take = [this](double decibels) { report({decibels, false}); };
    const auto fail = [this] {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            hasFailed = true;
        }
        changed.notify_all();
    };
    MicrophoneLevel microphone(take, fail);
    if (!microphone.Open(element, INTERVAL))
        return false;
    std::unique_lock<std::mutex> lock(mutex);
    changed.wait(lock, [this] { return isStopping || hasFailed; });
    return isStopping;
}

#else

void AudioLevelWorker::Run()
{
    RunTestSignal();
}

#endif

void AudioLevelWorker::RunTestSignal()
{
    const Clock::time_point start = Clock::now();
    // Two sources that run at the same time do not move in step.
    const double offset = withMicrophone ? 0.0 : 1.6;
    std::unique_lock<std::mutex> lock(mutex);
    for (Clock::time_point now = start; !isStopping; now = Clock::now()) {
        lock.unlock();
        report({SpeechPeak(std::chrono::duration<double>(now - start).count() + offset), true});
        lock.lock();
        changed.wait_until(lock, now + INTERVAL, [this] { return isStopping; });
    }
}

} // namespace Zelkor::StandIn
