#pragma once

namespace Zelkor::Vx::UI::Common {

/// Writes the log lines of one class.
///
/// Log filters of deployed applications match severity, source location and text. The location is therefore an argument
/// and not that of the caller, which changes when code moves. The text of a line is the qualified name of the function,
/// ": " and the message. Thread-safe. Objects have static storage duration.
class LogSource
{
public:
    /// `file` is the path to log, such as "Lib/UI/Widgets/ColorButton", and must outlive the object.
    explicit constexpr LogSource(const char* file) : file(file) {}

    void Error(int line, const char* function, const char* message) const;
    void Error(int line, const char* function, const char* message, int number) const;
    void Warning(int line, const char* function, const char* message) const;

    /// Logs if `--v`, or `--vmodule` for the base name of the file, is at least `level`.
    void Verbose(int level, int line, const char* function, const char* message) const;

private:
    bool IsVerbose(int level) const;

    const char* file;
    mutable void* verbositySite = nullptr; ///< glog's record of the verbosity of this file
};

} // namespace Zelkor::Vx::UI::Common
