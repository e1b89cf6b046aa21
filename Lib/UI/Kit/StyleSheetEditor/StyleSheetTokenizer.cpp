#include <UI/Kit/StyleSheetEditor/StyleSheetTokenizer.h>

#include <QStringView>

#include <algorithm>

namespace Zelkor::Vx::UI::Kit::StyleSheetTokenizer {

namespace {

constexpr QChar BACKSLASH('\\');
constexpr QChar NEW_LINE('\n');
constexpr QStringView NOT_IN_URL = u"\"$%&'()<?[]^`{";

bool IsDigit(QChar letter)
{
    return letter >= QLatin1Char('0') && letter <= QLatin1Char('9');
}

bool IsHexDigit(QChar letter)
{
    return IsDigit(letter) || (letter.toLower() >= QLatin1Char('a') && letter.toLower() <= QLatin1Char('f'));
}

/// Scans a text token by token.
class Scanner
{
public:
    explicit Scanner(const QString& text) : text(text) {}

    QVector<Token> all(bool inComment)
    {
        QVector<Token> tokens;
        while (position < text.size()) {
            const int start = position;
            isClosed = true;
            const Kind kind = inComment ? comment() : next();
            inComment = false;
            position = std::min(position, int(text.size()));
            tokens.append({kind, start, position - start, isClosed});
        }
        return tokens;
    }

private:
    QChar at(int offset) const { return position + offset < text.size() ? text[position + offset] : QChar(); }

    // A backslash escapes the next character. Numeric escapes are not supported in names.
    bool isNameAt(int offset) const
    {
        const QChar letter = at(offset);
        if (letter != BACKSLASH)
            return IsNameLetter(letter);
        return !at(offset + 1).isNull() && !at(offset + 1).isSpace() && !IsHexDigit(at(offset + 1));
    }

    // A name may begin with one dash, not with a digit.
    bool isNameBeginAt(int offset) const
    {
        const int first = offset + (at(offset) == QLatin1Char('-') ? 1 : 0);
        return isNameAt(first) && at(first) != QLatin1Char('-') && !IsDigit(at(first));
    }

    bool isNumberAt(int offset) const
    {
        return IsDigit(at(offset)) || (at(offset) == QLatin1Char('.') && IsDigit(at(offset + 1)));
    }

    Kind next()
    {
        const QChar letter = at(0);
        if (letter.isSpace()) {
            while (at(0).isSpace())
                ++position;
            return Kind::SPACE;
        }
        if (letter == QLatin1Char('/') && at(1) == QLatin1Char('*')) {
            position += 2;
            return comment();
        }
        if (letter == QLatin1Char('"') || letter == QLatin1Char('\''))
            return string(letter);
        if (isNumberAt(0))
            return number();
        if (isNameBeginAt(0))
            return word();
        ++position;
        if ((letter == QLatin1Char('#') && isNameAt(0)) || (letter == QLatin1Char('@') && isNameBeginAt(0))) {
            skipName();
            return letter == QLatin1Char('#') ? Kind::HASH : Kind::AT_WORD;
        }
        return Kind::SYMBOL;
    }

    Kind comment()
    {
        const int end = text.indexOf(QLatin1String("*/"), position);
        isClosed = end >= 0;
        position = isClosed ? end + 2 : text.size();
        return Kind::COMMENT;
    }

    // A string ends at the end of the line, unless a backslash escapes that.
    Kind string(QChar quote)
    {
        ++position;
        while (position < text.size() && at(0) != NEW_LINE) {
            const QChar letter = at(0);
            position += letter == BACKSLASH ? 2 : 1;
            if (letter == quote)
                return Kind::STRING;
        }
        isClosed = false;
        return Kind::STRING;
    }

    Kind number()
    {
        while (isNumberAt(0))
            ++position;
        if (at(0) == QLatin1Char('%'))
            ++position;
        else if (isNameBeginAt(0))
            skipName();
        return Kind::NUMBER;
    }

    // An unquoted URL may contain colons and semicolons. With a character that Qt does not accept in a URL, it is an
    // ordinary function.
    Kind word()
    {
        const int start = position;
        skipName();
        if (at(0) != QLatin1Char('('))
            return Kind::WORD;
        const bool isUrl = QStringView(text).mid(start, position - start).compare(u"url", Qt::CaseInsensitive) == 0;
        int end = ++position;
        while (end < text.size() && !text[end].isSpace() && !NOT_IN_URL.contains(text[end]))
            end += text[end] == BACKSLASH ? 2 : 1;
        if (!isUrl || end >= text.size() || text[end] != QLatin1Char(')'))
            return Kind::FUNCTION;
        position = end + 1;
        return Kind::URL;
    }

    void skipName()
    {
        while (isNameAt(0))
            position += at(0) == BACKSLASH ? 2 : 1;
    }

    const QString& text;
    int position = 0;
    bool isClosed = true;
};

} // namespace

QVector<Token> Tokenize(const QString& text, bool inComment)
{
    return Scanner(text).all(inComment);
}

bool IsNameLetter(QChar letter)
{
    return letter.unicode() >= 0x80 || letter.isLetterOrNumber() || letter == QLatin1Char('_') ||
           letter == QLatin1Char('-');
}

void SyntaxState::advance(const QString& text, const Token& token)
{
    inComment = token.kind == Kind::COMMENT && !token.isClosed;
    if (token.kind == Kind::AT_WORD && region == Region::SELECTOR)
        inMediaHead = QStringView(text).mid(token.start, token.length).compare(u"@media", Qt::CaseInsensitive) == 0;
    if (token.kind != Kind::SYMBOL)
        return;
    switch (text[token.start].unicode()) {
    case '{':
        region = inMediaHead ? Region::SELECTOR : Region::PROPERTY;
        inMediaHead = inBrackets = false;
        break;
    case '}':
        region = Region::SELECTOR;
        inMediaHead = inBrackets = false;
        break;
    case ':':
        if (region == Region::PROPERTY)
            region = Region::VALUE;
        break;
    case ';':
        if (region == Region::VALUE)
            region = Region::PROPERTY;
        inMediaHead = false;
        break;
    case '[':
    case ']':
        inBrackets = region == Region::SELECTOR && text[token.start] == QLatin1Char('[');
        break;
    default:
        break;
    }
}

int SyntaxState::pack() const
{
    return static_cast<int>(region) | inComment << 2 | inBrackets << 3 | inMediaHead << 4;
}

SyntaxState SyntaxState::unpack(int packed)
{
    SyntaxState position;
    position.region = static_cast<Region>(packed & 3);
    position.inComment = packed & 4;
    position.inBrackets = packed & 8;
    position.inMediaHead = packed & 16;
    return position;
}

} // namespace Zelkor::Vx::UI::Kit::StyleSheetTokenizer
