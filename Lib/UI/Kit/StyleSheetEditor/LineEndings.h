#pragma once

#include <QString>

/// Line ends that a text document does not keep.
namespace Zelkor::Vx::UI::Kit::LineEndings {

/// The raw text of a document, in which U+2029 ends each line, with the line ends of the text that it was made from.
/// Lines that are in both keep their own end; new ones get the one that is most frequent in `original`.
QString Restore(const QString& original, const QString& raw);

} // namespace Zelkor::Vx::UI::Kit::LineEndings
