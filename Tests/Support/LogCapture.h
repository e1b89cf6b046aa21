#pragma once

#include <glog/logging.h>

#include <QStringList>

#include <mutex>
#include <vector>

namespace Support {

/// Collects the log lines that are written while it lives, from any thread.
class LogCapture : private google::LogSink
{
public:
    LogCapture();
    ~LogCapture() override;

    /// "E Lib/UI/Widgets/ColorButton:12 text": severity letter, file, line and text of each line, in order.
    QStringList Lines() const;

    /// Takes the lines seen so far.
    QStringList Take();

private:
    void send(google::LogSeverity severity, const char* fullFilename, const char* baseFilename, int line,
              const google::LogMessageTime& time, const char* message, size_t length) override;

    mutable std::mutex mutex;
    QStringList lines;
};

} // namespace Support
