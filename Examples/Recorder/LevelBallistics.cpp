#include "LevelBallistics.h"

#include <algorithm>

namespace Zelkor::Recorder {

void LevelBallistics::TakePeak(double peak, Time time)
{
    const double falling = DecibelsAt(time);
    // With the operands swapped, NaN would remain.
    decibels = peak > falling ? std::min(peak, 0.0) : falling;
    since = std::max(since, time);
}

double LevelBallistics::LevelAt(Time time) const
{
    return 1 - DecibelsAt(time) / FLOOR_DB;
}

double LevelBallistics::DecibelsAt(Time time) const
{
    const double seconds = std::chrono::duration<double>(std::max(time, since) - since).count();
    return std::max(decibels - RELEASE_DB_PER_SECOND * seconds, FLOOR_DB);
}

} // namespace Zelkor::Recorder
