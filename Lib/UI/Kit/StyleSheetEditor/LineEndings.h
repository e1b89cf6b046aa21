#pragma once

#include <QString>

/// Preserves the line endings of a text, which QTextDocument replaces.
namespace Zelkor::Vx::UI::Kit::LineEndings {

/// Returns the raw text of a document, whose lines end with U+2029, with the line endings of the original text. Lines
/// that are in both keep their ending; new lines get the most frequent one of `original`.
QString Restore(const QString& original, const QString& raw);

} // namespace Zelkor::Vx::UI::Kit::LineEndings
