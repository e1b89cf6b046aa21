#pragma once

#include <QFile>

#if defined(Q_OS_WIN)
#include <QtCore/qt_windows.h>

#include <psapi.h>
#else
#include <ctime>
#endif

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
// Declared here because GCC does not ship the header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace Support {

/// Returns the resident memory of this process in megabytes. Under AddressSanitizer, which delays deallocation, returns
/// the allocated memory.
inline double Resident()
{
#if defined(__SANITIZE_ADDRESS__)
    return double(__sanitizer_get_current_allocated_bytes()) / 1e6;
#elif defined(Q_OS_WIN)
    PROCESS_MEMORY_COUNTERS counters = {};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return double(counters.WorkingSetSize) / 1e6;
#else
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * 4096 / 1e6;
#endif
}

/// Returns the CPU time of this process in seconds.
inline double ProcessorSeconds()
{
#if defined(Q_OS_WIN)
    // clock() returns wall-clock time on Windows.
    FILETIME created, ended, kernel, user;
    GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user);
    const auto seconds = [](const FILETIME& time) {
        return (time.dwHighDateTime * 4294967296.0 + time.dwLowDateTime) * 1e-7;
    };
    return seconds(kernel) + seconds(user);
#else
    return double(std::clock()) / CLOCKS_PER_SEC;
#endif
}

} // namespace Support
