#pragma once

#include <QIcon>
#include <QString>

#include <optional>

namespace Zelkor::Gallery {

/// Where a style sheet and its icons come from.
struct StyleSheet
{
    QString text;
    QString iconFolder;
};

/// Reads a style sheet: "dark" and "light" are the built-in ones, anything else is a file whose icons lie in a folder
/// beside it that is named like it. Nothing, and why in `error`, when it cannot be read.
std::optional<StyleSheet> LoadStyleSheet(const QString& nameOrFile, QString& error);

/// Gives the application this look: the sheet, its icons, and a basic style that draws alike everywhere.
void ApplyStyleSheet(const StyleSheet& sheet);

/// The icon `name` of the style sheet, in its plain and its disabled tint. It follows when another one is applied.
QIcon StyleIcon(const QString& name);

/// The same in the tint that goes with the accent.
QIcon StyleIconOnAccent(const QString& name);

/// The icon `name` of the built-in style sheet "dark" or "light", whatever is applied.
QIcon BuiltInIcon(const QString& sheet, const QString& name);

} // namespace Zelkor::Gallery
