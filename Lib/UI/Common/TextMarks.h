#pragma once

#include <QChar>
#include <QString>

namespace Zelkor::Vx::UI::Common {

// Invisible marks that set the direction of the text between them.
inline constexpr QChar LEFT_TO_RIGHT_EMBEDDING(0x202A);
inline constexpr QChar RIGHT_TO_LEFT_EMBEDDING(0x202B);
inline constexpr QChar POP_DIRECTIONAL_FORMATTING(0x202C);
inline constexpr QChar LEFT_TO_RIGHT_OVERRIDE(0x202D);

/// `text` between the marks that make it run from left to right, whatever letters it has.
QString Embed(const QString& text);

/// `text` without the marks of `Embed`. A text that does not begin with such a mark is returned as it is.
QString WithoutEmbedding(QString text);

/// `text` as it is drawn with mnemonics: without the marks of the underlined letter, "&&" as "&".
QString WithoutMnemonic(const QString& text);

} // namespace Zelkor::Vx::UI::Common
