#pragma once

#include <QString>

#include <optional>

/// Reads and writes style sheets in UTF-8 files.
namespace Zelkor::Vx::UI::Kit::StyleSheetFile {

struct Contents
{
    QString text; ///< without byte-order mark, with the line endings of the file
    bool hasByteOrderMark = false;
};

/// The reason why a file could not be read or written.
struct Error
{
    const char* text = nullptr; ///< untranslated sentence
    QString fileName;
    QString reason; ///< error string of Qt

    /// Returns the sentence in the language of the application.
    QString describe() const;
};

/// Reads a regular file. Fails for pipes, devices and folders, on read errors, and for contents that are not UTF-8 or
/// larger than 16 MiB.
std::optional<Contents> Read(const QString& fileName, Error& error);

/// Replaces a file atomically. Returns false and leaves it unchanged on errors.
bool Write(const QString& fileName, const Contents& contents, Error& error);

} // namespace Zelkor::Vx::UI::Kit::StyleSheetFile
