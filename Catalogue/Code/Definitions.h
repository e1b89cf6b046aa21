#pragma once

#include "Tokens.h"

#include <QMap>
#include <QStringList>

#include <optional>

namespace Zelkor::Catalogue {

/// A parameter of a function.
struct Parameter
{
    Tokens type; ///< with `const`, `&` and `*`
    QString name;
    Tokens value; ///< the default argument
};

/// A function or lambda.
struct Function
{
    QStringList templateParameters;
    QVector<Parameter> parameters;
    Tokens body; ///< without its braces
};

/// A definition at namespace scope, or a variable of the function that returns an entry.
struct Definition
{
    enum Kind { CONSTANT, FUNCTION, CLASS };

    Kind kind = CONSTANT;
    QString name;
    Tokens tokens; ///< whole, with the comment before
    Tokens type;   ///< of a constant, or what a function returns
    Tokens value;  ///< of a constant, if written with `=` or as arguments of a constructor
};

/// A file of the catalogue, or of what it shares with the examples.
struct SourceFile
{
    QStringList includes; ///< the names between angle brackets
    QStringList usings;   ///< the qualified names of using declarations
    QVector<Definition> definitions;
};

/// Parses a source file. Definitions outside of namespaces are left out.
SourceFile ParseSource(const QString& code);

/// Parses the variables of a function body, and its type aliases, whose values are types.
QVector<Definition> ParseLocals(const Tokens& body);

/// Parses a lambda, or the definition of a function.
std::optional<Function> ParseFunction(const Tokens& tokens);

/// Parses what is between the parentheses of a function.
QVector<Parameter> ParseParameters(const Tokens& tokens);

} // namespace Zelkor::Catalogue
