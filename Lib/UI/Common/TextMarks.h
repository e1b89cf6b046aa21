#pragma once

#include <QChar>
#include <QString>

namespace Zelkor::Vx::UI::Common {

// Invisible control characters that set the direction of the text between them.
inline constexpr QChar LEFT_TO_RIGHT_EMBEDDING(0x202A);
inline constexpr QChar RIGHT_TO_LEFT_EMBEDDING(0x202B);
inline constexpr QChar POP_DIRECTIONAL_FORMATTING(0x202C);
inline constexpr QChar LEFT_TO_RIGHT_OVERRIDE(0x202D);

/// Returns `text` between control characters that make it run from left to right, whatever its script.
QString Embed(const QString& text);

/// Returns `text` without the control characters of `Embed`; a text that does not begin with one is unchanged.
QString WithoutEmbedding(QString text);

/// Returns `text` as it is drawn with mnemonics: "&&" becomes "&", any other "&" is removed.
QString WithoutMnemonic(const QString& text);

} // namespace Zelkor::Vx::UI::Common
