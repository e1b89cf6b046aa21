#include <UI/Common/LogSource.h>

#include <glog/logging.h>

#include <mutex>

namespace Zelkor::Vx::UI::Common {

void LogSource::Error(int line, const char* function, const char* message) const
{
    google::LogMessage(file, line, google::GLOG_ERROR).stream() << function << ": " << message;
}

void LogSource::Error(int line, const char* function, const char* message, int number) const
{
    google::LogMessage(file, line, google::GLOG_ERROR).stream() << function << ": " << message << number;
}

void LogSource::Warning(int line, const char* function, const char* message) const
{
    google::LogMessage(file, line, google::GLOG_WARNING).stream() << function << ": " << message;
}

void LogSource::Verbose(int level, int line, const char* function, const char* message) const
{
    if (IsVerbose(level))
        google::LogMessage(file, line, google::GLOG_INFO).stream() << function << ": " << message;
}

// VLOG_IS_ON for the given file. glog keeps the address of the site, which is therefore never deleted.
bool LogSource::IsVerbose(int level) const
{
#if defined(__GNUC__)
    static std::mutex registration;
    const std::lock_guard<std::mutex> lock(registration);
    if (!verbositySite)
        verbositySite = new google::SiteFlag{nullptr, nullptr, 0, nullptr};
    auto* site = static_cast<google::SiteFlag*>(verbositySite);
    return site->level ? *site->level >= level : google::InitVLOG3__(site, &FLAGS_v, file, level);
#else
    return FLAGS_v >= level;
#endif
}

} // namespace Zelkor::Vx::UI::Common
