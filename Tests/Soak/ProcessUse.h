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

/// Seconds of processor time that this process has taken.
inline double ProcessorSeconds()
{
#if defined(Q_OS_WIN)
    // clock() tells the time of day here.
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
