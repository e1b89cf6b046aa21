#pragma once

namespace Zelkor::Vx::UI::Common {

/// Writes the log lines of one class.
///
/// Severity, source location and text of a log line are a contract with the filters that people have in the field. So
/// file and line are given here and not taken from the compiler: they stay when code moves. The text of a line is the
/// qualified name of the function, ": ", and the message. Any thread may write. Objects have static storage.
class LogSource
{
public:
    /// `file` names the class's source, "Lib/UI/Widgets/ColorButton" for instance, and must outlive the object.
    explicit constexpr LogSource(const char* file) : file(file) {}

    void Error(int line, const char* function, const char* message) const;
    void Error(int line, const char* function, const char* message, int number) const;
    void Warning(int line, const char* function, const char* message) const;

    /// Written when `--v`, or `--vmodule` for the base name of the file, is at least `level`.
    void Verbose(int level, int line, const char* function, const char* message) const;

private:
    bool IsVerbose(int level) const;

    const char* file;
    mutable void* verbositySite = nullptr; ///< glog's record of how verbose this file is
};

} // namespace Zelkor::Vx::UI::Common
