#pragma once

#include <chrono>

namespace Zelkor::Recorder {

/// Makes a steady meter level of measured peaks: it rises at once and falls slowly, so that an eye can follow.
///
/// Time comes from outside. Any thread, one at a time.
class LevelBallistics
{
public:
    using Time = std::chrono::steady_clock::time_point;

    static constexpr double FLOOR_DB = -60; ///< shows as silence, and all below
    static constexpr double RELEASE_DB_PER_SECOND = 20;

    /// Takes a peak in decibels of full scale, measured at `time`. What is not a number counts as silence.
    void TakePeak(double decibels, Time time);

    /// The level at `time`, from 0 for the floor and below to 1 for full scale and above. A time before that of the
    /// last peak counts as that one.
    double LevelAt(Time time) const;

private:
    double DecibelsAt(Time time) const;

    double decibels = FLOOR_DB;
    Time since{};
};

} // namespace Zelkor::Recorder
