#pragma once

#include <Zelkor/HostExport.h>

#include <cstdint>

namespace Zelkor::Time {

/// A clock that several capture sessions can share as their timeline.
class VX_HOST_INTERFACE IChronometer
{
public:
    virtual ~IChronometer() = default;

    /// Returns nanoseconds since an arbitrary origin. Monotonic. Any thread may call.
    virtual std::int64_t Now() const = 0;
};

} // namespace Zelkor::Time
