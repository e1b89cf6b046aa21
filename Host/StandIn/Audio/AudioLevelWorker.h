#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

namespace Zelkor::StandIn {

/// Measures levels on its own thread, from `Start` to `RequestStop`. Any thread may call.
class AudioLevelWorker : public std::enable_shared_from_this<AudioLevelWorker>
{
public:
    struct Peak
    {
        double decibels = 0;       ///< relative to full scale; may be infinite or not a number
        bool isTestSignal = false; ///< false for a peak of the microphone
    };

    static constexpr std::chrono::milliseconds INTERVAL{33}; ///< between two peaks

    /// Called once per interval, on the worker's thread or on a thread of GStreamer.
    using Report = std::function<void(const Peak&)>;

    AudioLevelWorker(bool withMicrophone, Report report) : withMicrophone(withMicrophone), report(std::move(report)) {}

    /// Starts the thread, which keeps the worker alive.
    void Start();
    /// Makes the thread end. Does not block: a report may still be running.
    void RequestStop();

private:
    void Run();
    bool RunMicrophone(const char* element);
    void RunTestSignal();

    const bool withMicrophone;
    const Report report;
    std::mutex mutex; ///< guards all members below
    std::condition_variable changed;
    bool isStopping = false;
    bool hasFailed = false; ///< whether the current microphone has failed
};

} // namespace Zelkor::StandIn
