#pragma once

#include <UI/Kit/StyleSheetEditor/QtStyleSheetParser.h>

#include <QString>
#include <QVector>

/// Finds mistakes in style sheets with their positions. Qt only reports that it cannot parse a sheet, and ignores
/// faulty declarations silently.
namespace Zelkor::Vx::UI::Kit::StyleSheetChecker {

enum class Problem {
    OPEN_COMMENT,     ///< comment without end
    OPEN_STRING,      ///< string without end
    OPEN_BLOCK,       ///< "{" without "}"
    OPEN_PARENTHESIS, ///< "(" without ")"
    OPEN_BRACKET,     ///< "[" without "]"
    EXTRA_BRACE,      ///< "}" without "{"
    NO_SELECTOR,      ///< missing selector
    NO_BLOCK,         ///< selector without declarations
    BAD_SELECTOR,     ///< invalid token in a selector
    NO_PROPERTY,      ///< missing name of a property
    NO_COLON,         ///< missing ":" after the name of a property
    NO_VALUE,         ///< missing value after ":"
    NO_SEMICOLON,     ///< missing ";" between declarations
    BAD_VALUE,        ///< invalid token in a value
    BAD_COLOR,        ///< invalid colour after "#"
    REFUSED           ///< rejected by Qt for another reason
};

struct Mistake
{
    Problem problem;
    int position; ///< character index
    int line;     ///< from 1
    int column;   ///< from 1
};

/// Returns the mistakes of `sheet`, sorted by position. Qt accepts a sheet without mistakes. It may also accept a sheet
/// with mistakes and ignore the declarations concerned. Does not check whether properties and classes exist. GUI thread
/// only.
QVector<Mistake> Check(const QString& sheet, StyleSheetScope scope = StyleSheetScope::APPLICATION);

/// Describes a problem in the language of the application.
QString Describe(Problem problem);

} // namespace Zelkor::Vx::UI::Kit::StyleSheetChecker
