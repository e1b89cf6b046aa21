#pragma once

#include <QString>
#include <QVector>

/// The words of a style sheet, and where in it they stand. Pure functions on text; the checker, the colours and the
/// completion of the style sheet editor share them.
namespace Zelkor::Vx::UI::Kit::StyleSheetTokenizer {

enum class Kind {
    SPACE,
    COMMENT,
    WORD,     ///< a name or a keyword
    HASH,     ///< "#" and what follows: an object name or a colour
    AT_WORD,  ///< "@media"
    STRING,   ///< with its quotes
    NUMBER,   ///< with its unit
    FUNCTION, ///< a word and the parenthesis that it opens
    URL,      ///< from "url(" to its ")"
    SYMBOL    ///< any other character, alone
};

struct Token
{
    Kind kind;
    int start; ///< characters before it
    int length;
    bool isClosed; ///< not a comment or a string whose end is missing

    int end() const { return start + length; }
};

/// The tokens of `text`, one after another, without gaps. With `inComment`, the text begins within a comment.
QVector<Token> Tokenize(const QString& text, bool inComment = false);

/// Whether a letter can be part of a name.
bool IsNameLetter(QChar letter);

/// The part of a rule at which a text stands.
enum class Place {
    SELECTOR,
    PROPERTY, ///< the name of a property, or before it
    VALUE
};

/// Where in its sheet a text stands. Follows it token by token.
struct Position
{
    Place place = Place::SELECTOR;
    bool inComment = false;
    bool inBrackets = false;  ///< in the attribute of a selector
    bool inMediaHead = false; ///< after "@media", before its "{"

    void advance(const QString& text, const Token& token);

    /// As a number from 0 and back, for a line of an editor to remember.
    int pack() const;
    static Position unpack(int packed);
};

} // namespace Zelkor::Vx::UI::Kit::StyleSheetTokenizer
