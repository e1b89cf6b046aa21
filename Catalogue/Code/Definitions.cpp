#include "Definitions.h"

#include <QRegularExpression>

namespace Zelkor::Catalogue {

namespace {

int IndexOf(const Tokens& tokens, const QStringList& texts, int from = 0)
{
    for (int i = from; i < tokens.size(); ++i) {
        if (texts.contains(tokens[i].text))
            return i;
    }
    return -1;
}

// Returns the first brace or semicolon outside of parentheses, -1 without one.
int EndOfHead(const Tokens& tokens, int from)
{
    for (int i = from; i < tokens.size(); ++i) {
        if (tokens[i].text == "(")
            i = ClosingBracket(tokens, i);
        else if (QStringList({"{", ";", "}"}).contains(tokens[i].text))
            return i;
    }
    return -1;
}

// Returns the index behind "template<...>", 0 without it.
int BehindTemplate(const Tokens& tokens)
{
    return tokens[0].text == "template" ? ClosingBracket(tokens, 1) + 1 : 0;
}

Definition ParseDefinition(const Tokens& tokens)
{
    Definition definition;
    definition.tokens = tokens;
    const int begin = BehindTemplate(tokens);
    if (tokens[begin].text == "class" || tokens[begin].text == "struct") {
        definition.kind = Definition::CLASS;
        definition.name = tokens[begin + 1].text;
        return definition;
    }
    const int end = IndexOf(tokens, {"(", "=", "[", "{", ";"}, begin);
    definition.name = tokens[end - 1].text;
    definition.type = tokens.mid(begin, end - 1 - begin);
    if (tokens.last().text == "}") {
        definition.kind = Definition::FUNCTION;
    } else if (tokens[end].text == "=") {
        definition.value = tokens.mid(end + 1, tokens.size() - end - 2);
    } else if (tokens[end].text == "(") {
        // Names the type, as in QSize(4, 3).
        definition.value = Tokens{tokens[end - 2]} + tokens.mid(end, tokens.size() - end - 1);
    }
    return definition;
}

} // namespace

QVector<Parameter> ParseParameters(const Tokens& tokens)
{
    QVector<Parameter> parameters;
    for (Tokens part : SplitAtCommas(tokens)) {
        Parameter parameter;
        const int assignment = IndexOf(part, {"="});
        if (assignment >= 0) {
            parameter.value = part.mid(assignment + 1);
            part = part.mid(0, assignment);
        }
        const int pointer = IndexOf(part, {"("});
        if (pointer >= 0 && part[pointer + 1].text == "*") { // void (*name)(Type)
            parameter.name = part[pointer + 2].text;
        } else if (part.size() > 1 && part.last().text[0].isLetter() && part[part.size() - 2].text != "::") {
            parameter.name = part.last().text;
            parameter.type = part.mid(0, part.size() - 1);
        } else {
            parameter.type = part;
        }
        parameters.append(parameter);
    }
    return parameters;
}

std::optional<Function> ParseFunction(const Tokens& tokens)
{
    if (tokens.isEmpty())
        return {};
    Function function;
    if (tokens[0].text == "template") {
        for (const Tokens& parameter : SplitAtCommas(Inside(tokens, 1)))
            function.templateParameters.append(parameter.last().text);
    }
    const int start = tokens[0].text == "[" ? ClosingBracket(tokens, 0) + 1 : BehindTemplate(tokens);
    const int open = IndexOf(tokens, {"(", "{"}, start);
    if (open < 0)
        return {};
    int behind = open;
    if (tokens[open].text == "(") {
        function.parameters = ParseParameters(Inside(tokens, open));
        behind = ClosingBracket(tokens, open) + 1;
    }
    const int brace = IndexOf(tokens, {"{"}, behind);
    if (brace < 0)
        return {};
    function.body = Inside(tokens, brace);
    return function;
}

SourceFile ParseSource(const QString& code)
{
    SourceFile file;
    static const QRegularExpression INCLUDE("^#include <([^>]+)>", QRegularExpression::MultilineOption);
    for (auto matches = INCLUDE.globalMatch(code); matches.hasNext();)
        file.includes.append(matches.next().captured(1));
    static const QRegularExpression USING("^using (Zelkor::[\\w:]+);", QRegularExpression::MultilineOption);
    for (auto matches = USING.globalMatch(code); matches.hasNext();)
        file.usings.append(matches.next().captured(1));

    // Directives have no meaning for the tokens.
    const Tokens tokens =
        Tokenize(QString(code).remove(QRegularExpression("^#[^\n]*", QRegularExpression::MultilineOption)));
    bool isInNamespace = false;
    for (int i = 0; i < tokens.size();) {
        int end = EndOfHead(tokens, i);
        if (end < 0)
            break;
        const bool opensNamespace = tokens[i].text == "namespace";
        isInNamespace |= opensNamespace;
        if (opensNamespace || tokens[end].text == "}") {
            i = end + 1;
            continue;
        }
        if (tokens[end].text == "{") {
            end = ClosingBracket(tokens, end);
            const bool hasSemicolon = end + 1 < tokens.size() && tokens[end + 1].text == ";";
            end += hasSemicolon;
        }
        const Tokens definition = tokens.mid(i, end + 1 - i);
        i = end + 1;
        const bool isDeclaration = definition.last().text == ";" && definition.size() > 2 &&
                                   definition[definition.size() - 2].text == ")" &&
                                   IndexOf(definition, {"constexpr", "const"}) != 0;
        if (isInNamespace && !isDeclaration && definition[0].text != "using")
            file.definitions.append(ParseDefinition(definition));
    }
    return file;
}

QVector<Definition> ParseLocals(const Tokens& body)
{
    QVector<Definition> locals;
    for (const Tokens& statement : SplitStatements(body)) {
        const int assignment = IndexOf(statement, {"="});
        if (assignment > 0 && statement[0].text != "return") {
            locals.append(ParseDefinition(statement));
            if (statement[0].text == "using")
                locals.last().kind = Definition::CLASS;
        }
    }
    return locals;
}

} // namespace Zelkor::Catalogue
