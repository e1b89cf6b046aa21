#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QTimer>

#if defined(Q_OS_WIN)
#include <QtCore/qt_windows.h>

#include <psapi.h>
#else
#include <ctime>
#endif

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <functional>

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

/// Memory use in megabytes.
struct Peaks
{
    double early = 0; ///< in the first third of a run
    double late = 0;  ///< in the rest
};

/// Runs the event loop for some seconds and calls `act` at the start of each. Returns the peaks of the memory use.
inline Peaks WatchMemory(int seconds, const std::function<void(int second)>& act)
{
    Peaks peaks;
    int second = 0;
    const auto tick = [&] {
        act(second);
        double& peak = 3 * second <= seconds ? peaks.early : peaks.late;
        peak = std::max(peak, Resident());
        if (second % 30 == 0)
            std::printf("%4d s: %.1f MB\n", second, Resident());
        std::fflush(stdout);
        if (++second > seconds)
            QCoreApplication::quit();
    };
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, tick);
    timer.start(1000);
    tick();
    QCoreApplication::exec();
    std::printf("peak %.1f MB, then %.1f MB\n", peaks.early, peaks.late);
    return peaks;
}

} // namespace Support
