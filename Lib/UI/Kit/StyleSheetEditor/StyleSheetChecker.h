#pragma once

#include <UI/Kit/StyleSheetEditor/QtStyleSheetParser.h>

#include <QString>
#include <QVector>

/// Finds the mistakes in a style sheet. Qt only says that it could not parse a sheet, and drops it whole, or drops a
/// declaration silently; a person who writes one wants to know where.
namespace Zelkor::Vx::UI::Kit::StyleSheetChecker {

enum class Problem {
    OPEN_COMMENT,     ///< a comment without end
    OPEN_STRING,      ///< a string without end
    OPEN_BLOCK,       ///< a "{" without "}"
    OPEN_PARENTHESIS, ///< a "(" without ")"
    OPEN_BRACKET,     ///< a "[" without "]"
    EXTRA_BRACE,      ///< a "}" without "{"
    NO_SELECTOR,      ///< nothing where a selector has to be
    NO_BLOCK,         ///< a selector without its declarations
    BAD_SELECTOR,     ///< something that cannot stand in a selector
    NO_PROPERTY,      ///< no name where the name of a property has to be
    NO_COLON,         ///< no ":" behind the name of a property
    NO_VALUE,         ///< nothing behind the ":"
    NO_SEMICOLON,     ///< two declarations with no ";" between them
    BAD_VALUE,        ///< something that cannot stand in a value
    BAD_COLOR,        ///< no colour behind a "#"
    REFUSED           ///< something else that Qt does not accept
};

struct Mistake
{
    Problem problem;
    int position; ///< characters before it
    int line;     ///< from 1
    int column;   ///< from 1
};

/// The mistakes of `sheet` in the order of their places. A sheet without any is one that Qt accepts; one with some may
/// be accepted too, without the declarations that have them. Does not check whether there are such properties and
/// widgets. GUI thread.
QVector<Mistake> Check(const QString& sheet, StyleSheetScope scope = StyleSheetScope::APPLICATION);

/// What is wrong and what to do, in the language of the application.
QString Describe(Problem problem);

} // namespace Zelkor::Vx::UI::Kit::StyleSheetChecker
