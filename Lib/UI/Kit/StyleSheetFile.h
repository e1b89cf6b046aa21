#pragma once

#include <QString>

#include <optional>

/// Style sheets in files, as UTF-8.
namespace StyleSheetFile {

/// The text of a file; nothing, and why in `error`, when it cannot be read, is no text or is far too large.
std::optional<QString> Read(const QString& fileName, QString& error);

/// Writes a file, whole or not at all; false, and why in `error`, when that cannot be.
bool Write(const QString& fileName, const QString& text, QString& error);

} // namespace StyleSheetFile
