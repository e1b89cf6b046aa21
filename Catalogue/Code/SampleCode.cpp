#include "SampleCode.h"
#include "StateExpression.h"

#include <Catalogue/Catalogue.h>

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace Zelkor::Catalogue {

namespace {

// Replaces translated texts by plain ones, and joins their lines.
Tokens WithPlainTexts(const Tokens& tokens)
{
    Tokens result;
    for (int i = 0; i < tokens.size(); ++i) {
        if (tokens[i].text != "EntryText" || i + 3 >= tokens.size() || tokens[i + 2].text != "tr") {
            result.append(tokens[i]);
            continue;
        }
        QString text;
        const Tokens literals = SplitAtCommas(Inside(tokens, i + 3)).value(0);
        for (const Token& part : literals)
            text += part.text.mid(1, part.text.size() - 2);
        text = '"' + text + '"';
        const QString space = tokens[i].space;
        i = ClosingBracket(tokens, i + 3);
        const bool hasMember = i + 1 < tokens.size() && tokens[i + 1].text == ".";
        const bool isAdded = !result.isEmpty() && result.last().text == "+";
        result.append({space, hasMember || isAdded ? "QString(" + text + ')' : text});
    }
    return result;
}

// Whether a constant reads better as its value: a number, or a constructor of numbers.
bool IsPlainValue(const Definition& constant)
{
    static const QRegularExpression PLAIN(R"(^-?[\d.]\S*$|^(QSize|QRect|QColor|QChar)\([\dx, -]*\)$)");
    return PLAIN.match(Join(constant.value)).hasMatch() && !constant.tokens.isEmpty() &&
           CountOf(constant.type, "qint64") == 0 && CountOf(constant.type, "long") == 0;
}

/// The definitions that some code uses, directly or not.
class Closure
{
public:
    explicit Closure(const Scope& scope) : scope(scope) {}

    void Add(const Tokens& code)
    {
        for (int i = 0; i < code.size(); ++i) {
            const Definition* definition = IsFreeName(code, i) ? scope.Find(code[i].text) : nullptr;
            if (definition && !names.contains(definition->name)) {
                names.insert(definition->name);
                Add(definition->tokens.mid(1));
            }
        }
    }

    /// Returns the definitions in the order of the sources.
    QVector<Definition> Definitions() const
    {
        QVector<Definition> found;
        for (const Definition& definition : scope.All()) {
            if (names.contains(definition.name))
                found.append(definition);
        }
        return found;
    }

private:
    const Scope& scope;
    QSet<QString> names;
};

// Returns the comment before a definition, without the lines before it.
QString CommentOf(const Tokens& tokens)
{
    const int start = int(tokens[0].space.indexOf('/'));
    return start < 0 ? QString() : tokens[0].space.mid(start).section("\n\n", -1);
}

// Whether code uses what a header declares.
bool Needs(const QString& code, const QString& header)
{
    const QString name = header.section('/', -1).section('.', 0, 0);
    if (header.startsWith("Catalogue/") || header.startsWith("Examples/"))
        return false;
    if (header.startsWith("Zelkor/"))
        return code.contains(header.section('/', 1, 1) + "::");
    if (header[0].isLower())
        return code.contains("std::");
    // Headers whose names do not occur in the code that needs them.
    if (name == "QVariant")
        return code.contains("setProperty(");
    if (name == "QAbstractItemView")
        return code.contains("view()");
    return code.contains(QRegularExpression("\\b" + name + "\\b"));
}

void AddHeaderOf(const Entry& entry, SampleCode& code, const Scope& scope)
{
    const QString all = code.declarations + code.statements;
    for (const QString& header : scope.Includes()) {
        const bool isOwn = header.endsWith('/' + entry.className + ".h");
        if ((isOwn || Needs(all, header)) && !code.includes.contains(header))
            code.includes.append(header);
    }
    // Ours, those of Qt, others.
    std::sort(code.includes.begin(), code.includes.end(), [](const QString& left, const QString& right) {
        const auto rank = [](const QString& header) { return header.contains('/') ? 0 : header[0].isUpper() ? 1 : 2; };
        return std::make_pair(rank(left), left) < std::make_pair(rank(right), right);
    });
    QString usings;
    for (const QString& name : scope.Usings()) {
        if (all.contains(QRegularExpression("\\b" + name.section("::", -1) + "\\b")))
            usings += "using " + name + ";\n";
    }
    static const QRegularExpression RELATIVE(R"((?<![\w:])(Core|Proc|StandIn|Util|Vx)::)");
    if (all.contains(RELATIVE))
        usings += "using namespace Zelkor;\n";
    code.declarations.prepend(usings + (usings.isEmpty() || code.declarations.isEmpty() ? "" : "\n"));
}

} // namespace

QString SampleCode::Text() const
{
    if (statements.isEmpty())
        return QString();
    QString text;
    for (int i = 0; i < includes.size(); ++i) {
        const bool isNewGroup = i > 0 && includes[i].contains('/') != includes[i - 1].contains('/');
        text += QString(isNewGroup ? "\n" : "") + "#include <" + includes[i] + ">\n";
    }
    if (!declarations.isEmpty())
        text += '\n' + declarations;
    return text + "\n// In the constructor of the parent widget:\n" + statements;
}

SampleCode CodeOf(const Entry& entry, int state)
{
    const Scope scope(entry);
    Tokens statements = StatementsOf(scope, state);
    if (statements.isEmpty())
        return {};
    Closure closure(scope);
    closure.Add(statements);
    SampleCode code;
    QVector<Definition> kept;
    for (const Definition& definition : closure.Definitions()) {
        if (definition.kind == Definition::CONSTANT && IsPlainValue(definition))
            statements = Replace(statements, definition.name, definition.value);
        else
            kept.append(definition);
    }
    bool wasConstant = false;
    for (Definition& definition : kept) {
        for (const Definition& constant : closure.Definitions()) {
            if (constant.kind == Definition::CONSTANT && IsPlainValue(constant))
                definition.tokens = Replace(definition.tokens, constant.name, constant.value);
        }
        const bool isCompact = definition.kind == Definition::CONSTANT && wasConstant;
        wasConstant = definition.kind == Definition::CONSTANT;
        code.declarations += (code.declarations.isEmpty() || isCompact ? "" : "\n") +
                             (CommentOf(definition.tokens) + Join(WithPlainTexts(definition.tokens))) + '\n';
    }
    code.statements = Join(WithPlainTexts(Replace(statements, "parent", Tokenize("this")))) + '\n';
    AddHeaderOf(entry, code, scope);
    return code;
}

QString HeaderOf(const Entry& entry)
{
    for (const QString& header : Scope(entry).Includes()) {
        if (header.endsWith('/' + entry.className + ".h"))
            return header;
    }
    return QString();
}

QString SourceFileOf(const Entry& entry)
{
    return Scope(entry).FileName();
}

} // namespace Zelkor::Catalogue
