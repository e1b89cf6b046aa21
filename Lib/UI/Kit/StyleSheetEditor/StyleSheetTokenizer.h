#pragma once

#include <QString>
#include <QVector>

/// Splits style sheets into tokens; used by checker, highlighter and completer. All functions are pure.
namespace Zelkor::Vx::UI::Kit::StyleSheetTokenizer {

enum class Kind {
    SPACE,
    COMMENT,
    WORD,     ///< name or keyword
    HASH,     ///< "#" with an object name or a colour
    AT_WORD,  ///< keyword such as "@media"
    STRING,   ///< including quotes
    NUMBER,   ///< including the unit
    FUNCTION, ///< name with its opening parenthesis
    URL,      ///< from "url(" to ")"
    SYMBOL    ///< any other single character
};

struct Token
{
    Kind kind;
    int start; ///< character index
    int length;
    bool isClosed; ///< false for a comment or string without end

    int end() const { return start + length; }
};

/// Returns the tokens of `text` without gaps. With `inComment`, the text begins within a comment.
QVector<Token> Tokenize(const QString& text, bool inComment = false);

/// Returns whether a character can be part of a name.
bool IsNameLetter(QChar letter);

/// The parts of a rule.
enum class Region {
    SELECTOR,
    PROPERTY, ///< up to the end of the name of a property
    VALUE
};

/// The state of a parser that advances token by token.
struct SyntaxState
{
    Region region = Region::SELECTOR;
    bool inComment = false;
    bool inBrackets = false;  ///< in an attribute selector
    bool inMediaHead = false; ///< after "@media", before its "{"

    void advance(const QString& text, const Token& token);

    /// Converts to and from a non-negative number, for QTextBlock::userState().
    int pack() const;
    static SyntaxState unpack(int packed);
};

} // namespace Zelkor::Vx::UI::Kit::StyleSheetTokenizer
