#pragma once

#include <UI/Kit/ZStyleSheet.h>

namespace Zelkor::Examples {

/// Loads a style sheet as LoadStyleSheet() does and applies it. "system" applies "dark" or "light" by the setting of
/// the system. Returns false and sets `error` if a file cannot be read.
bool ApplyStyleSheet(const QString& nameOrFile, QString* error = nullptr);

/// Loads "dark", "light" or "high-contrast", which are linked into the program, or a style sheet from a file. A file
/// without a folder of icons takes linked ones. Returns std::nullopt and sets `error` if the file cannot be read.
std::optional<ZStyleSheet> LoadStyleSheet(const QString& nameOrFile, QString* error = nullptr);

/// Returns whether `name` is "system", or that of a style sheet linked into the program.
bool IsBuiltInStyleSheet(const QString& name);

} // namespace Zelkor::Examples
