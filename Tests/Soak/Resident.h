#pragma once

#include <QFile>

namespace Support {

/// Megabytes that this process has in memory.
inline double Resident()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * 4096 / 1e6;
}

} // namespace Support
