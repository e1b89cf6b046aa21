#pragma once

#include <UI/Kit/ZStyleSheet.h>

namespace Zelkor::Examples {

/// Loads "dark", "light" or "high-contrast", which are linked into the program, or a style sheet from a file. Returns
/// std::nullopt and sets `error` if the file cannot be read.
std::optional<ZStyleSheet> LoadStyleSheet(const QString& nameOrFile, QString* error = nullptr);

/// Returns whether `name` is that of a style sheet linked into the program.
bool IsBuiltInStyleSheet(const QString& name);

} // namespace Zelkor::Examples
