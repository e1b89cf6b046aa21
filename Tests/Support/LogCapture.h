#pragma once

#include <glog/logging.h>

#include <QStringList>

#include <mutex>
#include <utility>

namespace Support {

/// Collects the log lines of all threads during its lifetime.
class LogCapture : private google::LogSink
{
public:
    LogCapture() { google::AddLogSink(this); }
    ~LogCapture() override { google::RemoveLogSink(this); }

    /// Returns the lines since the last call in order, as severity, file, line and text:
    /// "E Lib/UI/Widgets/ColorButton:12 text".
    QStringList Take()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return std::exchange(lines, {});
    }

private:
    void send(google::LogSeverity severity, const char* file, const char*, int line, const google::LogMessageTime&,
              const char* message, size_t length) override
    {
        const std::lock_guard<std::mutex> lock(mutex);
        lines += QStringLiteral("%1 %2:%3 %4")
                     .arg(QLatin1Char(google::GetLogSeverityName(severity)[0]))
                     .arg(QString::fromUtf8(file))
                     .arg(line)
                     .arg(QString::fromUtf8(message, int(length)));
    }

    std::mutex mutex;
    QStringList lines;
};

} // namespace Support
