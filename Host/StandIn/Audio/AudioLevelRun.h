#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

namespace Zelkor::StandIn {

/// Measures levels on a thread of its own, from its start until it is ended. Any thread.
class AudioLevelRun : public std::enable_shared_from_this<AudioLevelRun>
{
public:
    struct Peak
    {
        double decibels = 0; ///< of full scale, within the limits of `AudioLevelSource`
        bool isTestSignal = false;
    };

    static constexpr std::chrono::milliseconds INTERVAL{33};

    /// Called once per interval, on a thread of the run or of its microphone.
    using Report = std::function<void(const Peak&)>;

    AudioLevelRun(bool withMicrophone, Report report) : withMicrophone(withMicrophone), report(std::move(report)) {}

    /// Starts the thread, which holds the run.
    void Start();
    /// Asks the thread to end; does not wait. A report may be under way.
    void End();

private:
    void Run();
    bool RunMicrophone(const char* element);
    void RunTestSignal();

    const bool withMicrophone;
    const Report report;
    std::mutex mutex; ///< guards all that follows
    std::condition_variable changed;
    bool isEnded = false;
    bool hasFailed = false; ///< the microphone of now
};

} // namespace Zelkor::StandIn
