#pragma once

#include <Zelkor/HostExport.h>

#include <cstdint>

namespace Zelkor::Time {

/// A clock that a capture session may be given, so that several sessions share one time line.
class VX_HOST_INTERFACE IChronometer
{
public:
    virtual ~IChronometer() = default;

    /// Nanoseconds since an origin of the clock's own; never goes backwards. Any thread may call.
    virtual std::int64_t Now() const = 0;
};

} // namespace Zelkor::Time
