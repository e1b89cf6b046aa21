#include "Tokens.h"

#include <QRegularExpression>
#include <QStringList>

namespace Zelkor::Catalogue {

namespace {

bool IsName(const Token& token)
{
    return !token.text.isEmpty() && (token.text[0].isLetter() || token.text[0] == '_');
}

QChar Partner(QChar open)
{
    switch (open.unicode()) {
    case '(':
        return ')';
    case '[':
        return ']';
    case '<':
        return '>';
    default:
        return '}';
    }
}

bool IsOpening(const QString& text)
{
    return text == "(" || text == "[" || text == "{";
}

bool IsClosing(const QString& text)
{
    return text == ")" || text == "]" || text == "}";
}

// Whether the `&` at `index` takes an address or captures, and is no operator between two values.
bool IsUnary(const Tokens& tokens, int index)
{
    return index == 0 || QStringList({"(", ",", "[", "=", "{"}).contains(tokens[index - 1].text);
}

} // namespace

Tokens Tokenize(const QString& code)
{
    static const QRegularExpression PATTERN(R"re((?<space>(?:\s+|//[^\n]*|/\*.*?\*/)*))re"
                                            R"re((?<text>"(?:\\.|[^"\\])*"|'(?:\\.|[^'\\])*'|::|->|)re"
                                            R"re([A-Za-z_]\w*|\d[\w.']*|.|$))re",
                                            QRegularExpression::DotMatchesEverythingOption);
    Tokens tokens;
    for (auto matches = PATTERN.globalMatch(code); matches.hasNext();) {
        const auto match = matches.next();
        if (!match.captured("text").isEmpty())
            tokens.append({match.captured("space"), match.captured("text")});
    }
    return tokens;
}

QString Join(const Tokens& tokens)
{
    QString code;
    for (const Token& token : tokens)
        code += (code.isEmpty() ? QString() : token.space) + token.text;
    return code;
}

bool IsFreeName(const Tokens& tokens, int index)
{
    static const QStringList QUALIFIERS = {".", "->", "::"};
    return IsName(tokens[index]) && (index == 0 || !QUALIFIERS.contains(tokens[index - 1].text));
}

int CountOf(const Tokens& tokens, const QString& name)
{
    int count = 0;
    for (int i = 0; i < tokens.size(); ++i)
        count += tokens[i].text == name && IsFreeName(tokens, i);
    return count;
}

int ClosingBracket(const Tokens& tokens, int open)
{
    const QString bracket = tokens[open].text;
    const QString partner = Partner(bracket[0]);
    int depth = 0;
    for (int i = open; i < tokens.size(); ++i) {
        depth += (tokens[i].text == bracket) - (tokens[i].text == partner);
        if (depth == 0)
            return i;
    }
    return tokens.size();
}

Tokens Inside(const Tokens& tokens, int open)
{
    return tokens.mid(open + 1, ClosingBracket(tokens, open) - open - 1);
}

QVector<Tokens> SplitAtCommas(const Tokens& tokens)
{
    QVector<Tokens> parts;
    int depth = 0;
    int begin = 0;
    for (int i = 0; i < tokens.size(); ++i) {
        depth += IsOpening(tokens[i].text) - IsClosing(tokens[i].text);
        if (depth == 0 && tokens[i].text == ",") {
            parts.append(tokens.mid(begin, i - begin));
            begin = i + 1;
        }
    }
    if (begin < tokens.size())
        parts.append(tokens.mid(begin));
    return parts;
}

QVector<Tokens> SplitStatements(const Tokens& body)
{
    QVector<Tokens> statements;
    int depth = 0;
    int begin = 0;
    for (int i = 0; i < body.size(); ++i) {
        depth += IsOpening(body[i].text) - IsClosing(body[i].text);
        const bool endsBlock = body[i].text == "}" && (i + 1 == body.size() || body[i + 1].space.contains('\n'));
        if (depth == 0 && (body[i].text == ";" || endsBlock)) {
            statements.append(body.mid(begin, i + 1 - begin));
            begin = i + 1;
        }
    }
    return statements;
}

Tokens Dedent(const Tokens& tokens)
{
    if (tokens.isEmpty())
        return tokens;
    QStringList lines = (tokens[0].space + Join(tokens)).split('\n');
    while (lines.size() > 1 && lines[0].trimmed().isEmpty())
        lines.removeFirst();
    int indentation = -1;
    for (const QString& line : lines) {
        if (!line.trimmed().isEmpty()) {
            const int own = int(line.size()) - int(QString(line).replace(QRegularExpression("^ +"), "").size());
            indentation = indentation < 0 ? own : qMin(indentation, own);
        }
    }
    for (QString& line : lines)
        line.remove(0, indentation);
    return Tokenize(lines.join('\n'));
}

Tokens Replace(const Tokens& tokens, const QString& name, const Tokens& replacement)
{
    if (replacement.isEmpty())
        return tokens;
    const bool isPointer = replacement[0].text == "*";
    Tokens result;
    for (int i = 0; i < tokens.size(); ++i) {
        if (tokens[i].text != name || !IsFreeName(tokens, i)) {
            result.append(tokens[i]);
            continue;
        }
        Tokens value = replacement;
        value[0].space = tokens[i].space;
        const bool hasMember = i + 1 < tokens.size() && tokens[i + 1].text == ".";
        const bool hasAddress = i > 0 && tokens[i - 1].text == "&" && IsUnary(tokens, i - 1);
        if (isPointer && (hasMember || hasAddress)) {
            value.removeFirst();
            value[0].space = tokens[i].space;
            if (hasAddress)
                value[0].space = result.takeLast().space;
        }
        result += value;
        if (isPointer && hasMember) {
            result.append({QString(), "->"});
            ++i;
        }
    }
    return result;
}

} // namespace Zelkor::Catalogue
