#pragma once

#include <QString>
#include <QVector>

namespace Zelkor::Catalogue {

/// A token of C++ with the white space and comments before it.
struct Token
{
    QString space;
    QString text;
};

using Tokens = QVector<Token>;

/// Splits C++ code without raw strings. Operators are single characters, except `::` and `->`.
Tokens Tokenize(const QString& code);

/// Returns the code of the tokens, without the space before the first one.
QString Join(const Tokens& tokens);

/// Returns whether the token at `index` is the name of a variable, function or type, and not of a member.
bool IsFreeName(const Tokens& tokens, int index);

/// Returns the number of free names that equal `name`.
int CountOf(const Tokens& tokens, const QString& name);

/// Returns the index of the bracket that closes the one at `open`, which is one of `( [ { <`; the size without one.
int ClosingBracket(const Tokens& tokens, int open);

/// Returns the tokens between the bracket at `open` and its partner.
Tokens Inside(const Tokens& tokens, int open);

/// Splits at commas outside of brackets. Empty for no tokens.
QVector<Tokens> SplitAtCommas(const Tokens& tokens);

/// Splits a function body at the ends of its statements and blocks.
QVector<Tokens> SplitStatements(const Tokens& body);

/// Removes the indentation that all lines share.
Tokens Dedent(const Tokens& tokens);

/// Replaces the free names that equal `name`. A replacement that starts with `*` dereferences a pointer: `name.`
/// becomes `pointer->` and `&name` becomes `pointer`.
Tokens Replace(const Tokens& tokens, const QString& name, const Tokens& replacement);

} // namespace Zelkor::Catalogue
