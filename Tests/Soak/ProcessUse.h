#pragma once

#include <QFile>

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
// The compiler ships the function without its header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace Support {

/// Megabytes that this process has in memory; under the address sanitizer, which holds on to what was freed, those that
/// are in use.
inline double Resident()
{
#if defined(__SANITIZE_ADDRESS__)
    return double(__sanitizer_get_current_allocated_bytes()) / 1e6;
#else
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * 4096 / 1e6;
#endif
}

} // namespace Support
