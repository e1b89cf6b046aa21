#pragma once

#include <chrono>
#include <optional>

namespace Zelkor::Vx {

/// Schedules the retries of a stream: 200 ms after an error, six times at most. Has no clock; the caller passes the
/// time. Internal.
class RetrySchedule
{
public:
    using Time = std::chrono::steady_clock::time_point;

    static constexpr std::chrono::milliseconds DELAY{200};
    static constexpr int MAX_RETRIES = 6;

    /// Resets the count, for a start by the application.
    void Restart() { *this = RetrySchedule(); }

    /// Cancels the pending retry.
    void Cancel() { due.reset(); }

    /// Schedules a retry for an error at `now`. Returns false if one is pending, or after giving up.
    bool Request(Time now)
    {
        if (gaveUp || due)
            return false;
        due = now + DELAY;
        return true;
    }

    /// Returns the time of the pending retry.
    std::optional<Time> Due() const { return due; }

    enum class Step {
        Wait,   ///< no retry is due yet
        Retry,  ///< start once more
        GiveUp, ///< all retries have failed
    };

    /// Returns the step to take at `now`, and counts a retry.
    Step Take(Time now)
    {
        if (!due || now < *due)
            return Step::Wait;
        due.reset();
        gaveUp = retries == MAX_RETRIES;
        if (gaveUp)
            return Step::GiveUp;
        ++retries;
        return Step::Retry;
    }

private:
    std::optional<Time> due;
    int retries = 0;
    bool gaveUp = false;
};

} // namespace Zelkor::Vx
