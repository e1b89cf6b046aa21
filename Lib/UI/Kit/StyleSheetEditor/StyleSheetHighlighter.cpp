#include <UI/Kit/StyleSheetEditor/StyleSheetHighlighter.h>

#include <UI/Kit/StyleSheetEditor/StyleSheetTokenizer.h>

#include <QColor>
#include <QStringView>

namespace Zelkor::Vx::UI::Kit {

namespace {

using StyleSheetTokenizer::Kind;
using StyleSheetTokenizer::Region;
using StyleSheetTokenizer::SyntaxState;
using StyleSheetTokenizer::Token;

/// Categories with a colour.
enum class Look {
    PLAIN,
    COMMENT,
    TYPE,  ///< class in a selector
    NAME,  ///< object name
    STATE, ///< pseudo-state or sub-control
    PROPERTY,
    WIDGET_PROPERTY, ///< property with "qproperty-"
    STRING,
    NUMBER,
    KEYWORD
};

constexpr int COLORED_LENGTH =
    4096; ///< characters of a line to highlight, because each format range slows down typing in the line

struct Colors
{
    QRgb onLight;
    QRgb onDark;
};

// In the order of Look. Contrast is at least 4.5:1 on white and on dark grey, respectively.
constexpr Colors COLORS[] = {
    {0, 0},
    {0xff5f6b7a, 0xff9aa5b1},
    {0xff1a56c4, 0xff86aaff},
    {0xff8a3ab9, 0xffd2a8ff},
    {0xff0b6e75, 0xff6fd3d8},
    {0xffa02c2c, 0xffff9d94},
    {0xffa14a00, 0xffffb86b},
    {0xff1f7a34, 0xff8ddb8c},
    {0xff8f5a00, 0xffe3c26b},
    {0xff1a56c4, 0xff86aaff},
};

bool IsSymbol(const QString& text, const Token& token, char symbol)
{
    return token.kind == Kind::SYMBOL && text[token.start] == QLatin1Char(symbol);
}

Look LookInSelector(const QString& text, const Token& token, const SyntaxState& at, const Token* before)
{
    switch (token.kind) {
    case Kind::HASH:
        return Look::NAME;
    case Kind::AT_WORD:
        return Look::KEYWORD;
    case Kind::WORD:
    case Kind::FUNCTION: {
        if (at.inBrackets)
            return Look::PROPERTY;
        const bool isState = before && (IsSymbol(text, *before, ':') || IsSymbol(text, *before, '!'));
        return isState ? Look::STATE : Look::TYPE;
    }
    default:
        return Look::PLAIN;
    }
}

Look LookOf(const QString& text, const Token& token, const SyntaxState& at, const Token* before)
{
    if (token.kind == Kind::COMMENT)
        return Look::COMMENT;
    if (token.kind == Kind::STRING || token.kind == Kind::URL)
        return Look::STRING;
    if (at.region == Region::SELECTOR)
        return LookInSelector(text, token, at, before);
    if (token.kind == Kind::WORD && at.region == Region::PROPERTY) {
        const bool isQt = QStringView(text).mid(token.start, token.length).startsWith(u"qproperty-");
        return isQt ? Look::WIDGET_PROPERTY : Look::PROPERTY;
    }
    if (token.kind == Kind::NUMBER || token.kind == Kind::HASH)
        return Look::NUMBER;
    return token.kind == Kind::FUNCTION ? Look::KEYWORD : Look::PLAIN;
}

} // namespace

void StyleSheetHighlighter::setOnDark(bool on)
{
    if (on == onDark)
        return;
    onDark = on;
    rehighlight();
}

void StyleSheetHighlighter::setDeclarationsOnly(bool on)
{
    if (on == declarationsOnly)
        return;
    declarationsOnly = on;
    rehighlight();
}

void StyleSheetHighlighter::highlightBlock(const QString& text)
{
    SyntaxState at;
    if (previousBlockState() >= 0)
        at = SyntaxState::unpack(previousBlockState());
    else if (declarationsOnly)
        at.region = Region::PROPERTY;
    const QVector<Token> tokens = StyleSheetTokenizer::Tokenize(text, at.inComment);
    for (int i = 0; i < tokens.size(); ++i) {
        const Token& token = tokens[i];
        const Look look = LookOf(text, token, at, i > 0 ? &tokens[i - 1] : nullptr);
        if (look != Look::PLAIN && token.start < COLORED_LENGTH) {
            const Colors& colors = COLORS[static_cast<int>(look)];
            QTextCharFormat format;
            format.setForeground(QColor(onDark ? colors.onDark : colors.onLight));
            format.setFontItalic(look == Look::COMMENT);
            setFormat(token.start, token.length, format);
        }
        at.advance(text, token);
    }
    setCurrentBlockState(at.pack());
}

} // namespace Zelkor::Vx::UI::Kit
