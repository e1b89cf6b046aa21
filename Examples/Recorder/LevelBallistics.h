#pragma once

#include <chrono>

namespace Zelkor::Recorder {

/// Computes a meter level from peaks: it rises at once and falls slowly.
///
/// The caller passes the time. Reentrant.
class LevelBallistics
{
public:
    using Time = std::chrono::steady_clock::time_point;

    static constexpr double FLOOR_DB = -60; ///< the meter's zero
    static constexpr double RELEASE_DB_PER_SECOND = 20;

    /// Adds a peak in dBFS that was measured at `time`. NaN counts as silence.
    void TakePeak(double decibels, Time time);

    /// Returns the level at `time`, from 0 (the floor or lower) to 1 (full scale or higher). A time before the last
    /// peak counts as the time of that peak.
    double LevelAt(Time time) const;

private:
    double DecibelsAt(Time time) const;

    double decibels = FLOOR_DB;
    Time since{};
};

} // namespace Zelkor::Recorder
