#pragma once

#include <Zelkor/IRefCountable.h>

#include <cstdint>

namespace Zelkor::Acquis {

/// Maps the timestamps of captured frames to the timeline of an output.
class VX_HOST_INTERFACE TimeShift : public RefCounted<IRefCountable>
{
public:
    /// Returns the time on the output's timeline for the captured `time`, both in nanoseconds. Called on the thread
    /// that reads the frame.
    virtual std::int64_t MapTime(std::int64_t time) const = 0;

protected:
    TimeShift() = default;
};

} // namespace Zelkor::Acquis
