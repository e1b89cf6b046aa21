#pragma once

#include <chrono>
#include <optional>

namespace Zelkor::Vx {

/// When a stream tries again after an error: 200 ms after the first of the errors that come together, six times at
/// most. Knows no clock; time is given. Internal.
class RetrySchedule
{
public:
    using Time = std::chrono::steady_clock::time_point;

    static constexpr std::chrono::milliseconds DELAY{200};
    static constexpr int MAX_RETRIES = 6;

    /// The application starts: it all begins anew.
    void Restart() { *this = RetrySchedule(); }

    /// The retry that was due does not come.
    void Cancel() { due.reset(); }

    /// An error at `now`. False when it changes nothing: a retry is due already, or there will be none any more.
    bool Request(Time now)
    {
        if (gaveUp || due)
            return false;
        due = now + DELAY;
        return true;
    }

    std::optional<Time> Due() const { return due; }

    enum class Step { Wait, Retry, GiveUp };

    /// What is to be done at `now`.
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
