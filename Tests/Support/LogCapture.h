#pragma once

#include <glog/logging.h>

#include <QStringList>

#include <mutex>
#include <vector>

namespace Support {

/// Collects the log lines of all threads during its lifetime.
class LogCapture : private google::LogSink
{
public:
    LogCapture();
    ~LogCapture() override;

    /// Returns the lines in order, as severity, file, line and text: "E Lib/UI/Widgets/ColorButton:12 text".
    QStringList Lines() const;

    /// Returns the lines and removes them.
    QStringList Take();

private:
    void send(google::LogSeverity severity, const char* fullFilename, const char* baseFilename, int line,
              const google::LogMessageTime& time, const char* message, size_t length) override;

    mutable std::mutex mutex;
    QStringList lines;
};

} // namespace Support
