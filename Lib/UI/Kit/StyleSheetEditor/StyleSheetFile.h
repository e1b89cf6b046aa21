#pragma once

#include <QString>

#include <optional>

/// Style sheets in files, as UTF-8.
namespace Zelkor::Vx::UI::Kit::StyleSheetFile {

struct Contents
{
    QString text; ///< without the byte-order mark, with the line ends of the file
    bool hasByteOrderMark = false;
};

/// Why a file was not read or written.
struct Error
{
    const char* text = nullptr; ///< untranslated
    QString fileName;
    QString reason;

    /// The whole sentence in the language of the application.
    QString describe() const;
};

/// Reads a regular file. Fails for pipes, devices and folders, after a read error, and for contents that are not UTF-8
/// or larger than 16 MiB.
std::optional<Contents> Read(const QString& fileName, Error& error);

/// Replaces a file as a whole, or leaves it as it was and returns false.
bool Write(const QString& fileName, const Contents& contents, Error& error);

} // namespace Zelkor::Vx::UI::Kit::StyleSheetFile
