#include <UI/Kit/StyleSheetEditor/StyleSheetChecker.h>

#include <UI/Kit/StyleSheetEditor/QtStyleSheetParser.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetTokenizer.h>

#include <QColor>
#include <QCoreApplication>

#include <algorithm>

namespace Zelkor::Vx::UI::Kit::StyleSheetChecker {

namespace {

using StyleSheetTokenizer::Kind;
using StyleSheetTokenizer::Token;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StyleSheetChecker)
};

constexpr QStringView NOT_IN_FUNCTION = u"$%&<?[]^`\\";

constexpr QChar END; ///< symbol after the last token

/// A single-pass parser that collects mistakes. After a mistake it continues with the next declaration or rule, so that
/// each is reported once.
class Parser
{
public:
    Parser(const QString& sheet, StyleSheetScope scope) : sheet(sheet)
    {
        bool hasBraces = false;
        for (const Token& token : StyleSheetTokenizer::Tokenize(sheet)) {
            if (!token.isClosed)
                report(token.kind == Kind::COMMENT ? Problem::OPEN_COMMENT : Problem::OPEN_STRING, token.start);
            if (token.kind == Kind::SPACE || token.kind == Kind::COMMENT)
                continue;
            tokens.append(token);
            hasBraces = hasBraces || symbolAt(tokens.size() - 1) == QLatin1Char('{');
        }
        if (scope == StyleSheetScope::WIDGET && !hasBraces)
            declarations(NO_BRACE);
        else
            rules(false);
        if (found.isEmpty() && !QtStyleSheetParser::IsAccepted(sheet, scope))
            report(Problem::REFUSED, QtStyleSheetParser::FindRefused(sheet, scope));
    }

    QVector<Mistake> mistakes()
    {
        std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.position < b.position; });
        int line = 1;
        int lineStart = 0;
        int position = 0;
        for (Mistake& mistake : found) {
            for (; position < mistake.position; ++position) {
                if (sheet[position] == QLatin1Char('\n')) {
                    ++line;
                    lineStart = position + 1;
                }
            }
            mistake.line = line;
            mistake.column = mistake.position - lineStart + 1;
        }
        return found;
    }

private:
    static constexpr int NO_BRACE = -1;

    void report(Problem problem, int position) { found.append({problem, position, 0, 0}); }

    bool isAt(Kind kind) const { return index < tokens.size() && tokens[index].kind == kind; }

    QChar symbolAt(int i) const
    {
        return i < tokens.size() && tokens[i].kind == Kind::SYMBOL ? sheet[tokens[i].start] : END;
    }

    bool isAt(char symbol) const { return symbolAt(index) == QLatin1Char(symbol); }
    bool isAtEnd() const { return index >= tokens.size(); }

    // Returns whether the current token ends a declaration.
    bool isStop() const { return isAtEnd() || isAt(';') || isAt('{') || isAt('}'); }

    // Returns whether no white space or comment precedes the current token.
    bool isAttached() const { return !isAtEnd() && index > 0 && tokens[index - 1].end() == tokens[index].start; }

    int here() const { return isAtEnd() ? sheet.size() : tokens[index].start; }
    int endOfLast() const { return index > 0 ? tokens[index - 1].end() : 0; }

    bool take(char symbol)
    {
        const bool found = isAt(symbol);
        index += found;
        return found;
    }

    bool takeAttached(Kind kind)
    {
        const bool found = isAttached() && isAt(kind);
        index += found;
        return found;
    }

    void rules(bool inMedia)
    {
        while (!isAtEnd() && !(inMedia && isAt('}'))) {
            if (isAt(Kind::AT_WORD) && !inMedia)
                atRule();
            else if (isAt('}'))
                report(Problem::EXTRA_BRACE, tokens[index++].start);
            else
                rule();
        }
    }

    void atRule()
    {
        const QString name = textAt(index++).toLower();
        while (!isStop())
            ++index;
        if (isAt(';') || isAtEnd() || isAt('}')) {
            if (!take(';') || name == QLatin1String("@media"))
                report(Problem::NO_BLOCK, endOfLast());
            return;
        }
        const int brace = tokens[index++].start;
        if (name != QLatin1String("@media")) {
            declarations(brace);
            return;
        }
        rules(true);
        if (!take('}'))
            report(Problem::OPEN_BLOCK, brace);
    }

    void rule()
    {
        const bool isGood = selectors();
        if (isAt('{')) {
            const int brace = tokens[index++].start;
            declarations(brace);
            return;
        }
        if (isGood)
            report(Problem::NO_BLOCK, endOfLast());
        take(';');
    }

    // Parses a list of selectors up to the brace. Reports the first mistake and returns false then.
    bool selectors()
    {
        do {
            if (!selector()) {
                skipToStop();
                return false;
            }
        } while (take(','));
        return true;
    }

    // Parses one selector of a list.
    bool selector()
    {
        bool needsPart = true;
        while (!isStop() && !isAt(',')) {
            if (isAt('>') || isAt('+') || isAt('~')) {
                if (needsPart)
                    return fail(Problem::NO_SELECTOR);
                needsPart = true;
                ++index;
                continue;
            }
            const bool isName = isAt(Kind::WORD) || isAt('*');
            if (isName && !needsPart && isAttached())
                return fail(Problem::BAD_SELECTOR);
            if (isName || isAt(Kind::HASH))
                ++index;
            else if (!part())
                return false;
            needsPart = false;
        }
        return !needsPart || fail(Problem::NO_SELECTOR);
    }

    bool fail(Problem problem)
    {
        report(problem, here());
        return false;
    }

    // Parses a class, an attribute, a pseudo-state or a sub-control.
    bool part()
    {
        if (isAt('['))
            return attribute();
        if (take('.'))
            return takeAttached(Kind::WORD) || fail(Problem::BAD_SELECTOR);
        if (!take(':'))
            return fail(Problem::BAD_SELECTOR);
        if (isAttached() && take(':') && !isAttached())
            return fail(Problem::BAD_SELECTOR);
        if (isAttached())
            take('!');
        if (takeAttached(Kind::WORD))
            return true;
        return (takeAttached(Kind::FUNCTION) && isAt(Kind::WORD) && (++index, take(')'))) ||
               fail(Problem::BAD_SELECTOR);
    }

    bool attribute()
    {
        const int bracket = tokens[index++].start;
        if (!isAt(Kind::WORD))
            return fail(Problem::BAD_SELECTOR);
        ++index;
        for (const char sign : {'~', '|', '^', '$', '*'})
            take(sign);
        if (take('=')) {
            if (!isAt(Kind::WORD) && !isAt(Kind::STRING))
                return fail(Problem::BAD_SELECTOR);
            ++index;
        }
        if (take(']'))
            return true;
        report(Problem::OPEN_BRACKET, bracket);
        return false;
    }

    // Parses declarations, including the closing brace if there is an opening one.
    void declarations(int brace)
    {
        while (!isAtEnd()) {
            if (isAt('}')) {
                const int position = tokens[index++].start;
                if (brace != NO_BRACE)
                    return;
                report(Problem::EXTRA_BRACE, position);
            } else if (!take(';') && !declaration()) {
                report(Problem::OPEN_BLOCK, brace);
                brace = tokens[index++].start;
            }
        }
        if (brace != NO_BRACE)
            report(Problem::OPEN_BLOCK, brace);
    }

    // Parses a declaration. Returns false before a "{", which means that the enclosing block is not closed.
    bool declaration()
    {
        const int start = index;
        while (!isStop())
            ++index;
        if (isAt('{'))
            return false;
        index = start;
        if (!isAt(':')) {
            if (!isAt(Kind::WORD)) {
                report(Problem::NO_PROPERTY, here());
                skipToStop();
                return true;
            }
            ++index;
            if (!isAt(':')) {
                report(Problem::NO_COLON, endOfLast());
                skipToStop();
                return true;
            }
        } else {
            report(Problem::NO_PROPERTY, here());
        }
        ++index;
        value();
        return true;
    }

    void skipToStop()
    {
        while (!isStop())
            ++index;
    }

    void value()
    {
        int start = index;
        while (!isStop()) {
            if (isAt(':')) {
                // A second colon: the word before it is the name of the next property.
                const int name = index - 1;
                if (name > start && tokens[name].kind == Kind::WORD)
                    report(Problem::NO_SEMICOLON, tokens[name - 1].end());
                else
                    report(Problem::NO_VALUE, tokens[start - 1].end());
                start = ++index;
            } else if (!term()) {
                skipToStop();
                return;
            }
        }
        if (index == start)
            report(Problem::NO_VALUE, endOfLast());
    }

    bool term()
    {
        const Token& token = tokens[index++];
        const QString text = textAt(index - 1);
        if (token.kind == Kind::FUNCTION)
            return arguments(token);
        if (token.kind == Kind::HASH && !QColor(text).isValid()) {
            report(Problem::BAD_COLOR, token.start);
            return false;
        }
        const bool isGood = token.kind == Kind::SYMBOL ? isOperator(text) : token.kind != Kind::AT_WORD;
        if (!isGood)
            report(Problem::BAD_VALUE, token.start);
        return isGood;
    }

    // A sign must be attached to the next token, and "!" to "important".
    bool isOperator(const QString& text) const
    {
        if (text == QLatin1String("!"))
            return isAttached() && isAt(Kind::WORD) && textAt(index) == QLatin1String("important");
        if (text == QLatin1String("+") || text == QLatin1String("-"))
            return isAttached() && !isStop();
        return text == QLatin1String(",") || text == QLatin1String("/");
    }

    // Parses arguments, including the closing parenthesis.
    bool arguments(const Token& function)
    {
        for (int depth = 1; depth > 0; ++index) {
            if (isStop()) {
                report(Problem::OPEN_PARENTHESIS, function.end() - 1);
                return false;
            }
            if (isAt(Kind::SYMBOL) && NOT_IN_FUNCTION.contains(symbolAt(index))) {
                report(Problem::BAD_VALUE, here());
                return false;
            }
            depth += isAt(Kind::FUNCTION) || isAt('(');
            depth -= isAt(')');
        }
        return true;
    }

    QString textAt(int i) const { return sheet.mid(tokens[i].start, tokens[i].length); }

    const QString& sheet;
    QVector<Token> tokens; ///< without spaces and comments
    int index = 0;
    QVector<Mistake> found;
};

} // namespace

QVector<Mistake> Check(const QString& sheet, StyleSheetScope scope)
{
    return Parser(sheet, scope).mistakes();
}

QString Describe(Problem problem)
{
    switch (problem) {
    case Problem::OPEN_COMMENT:
        return Texts::tr("The comment has no end.");
    case Problem::OPEN_STRING:
        return Texts::tr("The string has no end.");
    case Problem::OPEN_BLOCK:
        return Texts::tr("The brace is not closed.");
    case Problem::OPEN_PARENTHESIS:
        return Texts::tr("The parenthesis is not closed.");
    case Problem::OPEN_BRACKET:
        return Texts::tr("The bracket is not closed.");
    case Problem::EXTRA_BRACE:
        return Texts::tr("The brace closes nothing.");
    case Problem::NO_SELECTOR:
        return Texts::tr("A selector is missing.");
    case Problem::NO_BLOCK:
        return Texts::tr("Declarations in braces are missing.");
    case Problem::BAD_SELECTOR:
        return Texts::tr("This cannot stand in a selector.");
    case Problem::NO_PROPERTY:
        return Texts::tr("The name of a property is missing.");
    case Problem::NO_COLON:
        return Texts::tr("A colon is missing.");
    case Problem::NO_VALUE:
        return Texts::tr("A value is missing.");
    case Problem::NO_SEMICOLON:
        return Texts::tr("A semicolon is missing.");
    case Problem::BAD_VALUE:
        return Texts::tr("This cannot stand in a value.");
    case Problem::BAD_COLOR:
        return Texts::tr("This is no colour.");
    case Problem::REFUSED:
        return Texts::tr("Qt does not accept this.");
    }
    return {};
}

} // namespace Zelkor::Vx::UI::Kit::StyleSheetChecker
