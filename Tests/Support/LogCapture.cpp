#include <Support/LogCapture.h>

namespace Support {

LogCapture::LogCapture()
{
    google::AddLogSink(this);
}

LogCapture::~LogCapture()
{
    google::RemoveLogSink(this);
}

QStringList LogCapture::Lines() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return lines;
}

QStringList LogCapture::Take()
{
    const std::lock_guard<std::mutex> lock(mutex);
    QStringList taken;
    taken.swap(lines);
    return taken;
}

void LogCapture::send(google::LogSeverity severity, const char* fullFilename, const char*, int line,
                      const google::LogMessageTime&, const char* message, size_t length)
{
    const std::lock_guard<std::mutex> lock(mutex);
    lines += QStringLiteral("%1 %2:%3 %4")
                 .arg(QLatin1Char(google::GetLogSeverityName(severity)[0]))
                 .arg(QString::fromUtf8(fullFilename))
                 .arg(line)
                 .arg(QString::fromUtf8(message, int(length)));
}

} // namespace Support
