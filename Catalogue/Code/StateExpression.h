#pragma once

#include "Definitions.h"

namespace Zelkor::Catalogue {

struct Entry;

/// The definitions that an entry's code can use.
class Scope
{
public:
    explicit Scope(const Entry& entry);

    /// Returns the file of the entry, relative to the source folder; empty if none defines it.
    QString FileName() const { return fileName; }

    const Definition* Find(const QString& name) const;

    /// Returns all definitions in the order of the sources, shared ones first.
    const QVector<Definition>& All() const { return definitions; }

    QStringList Includes() const { return includes; }
    QStringList Usings() const { return usings; }

    /// Returns the elements of the entry's initialiser.
    const QVector<Tokens>& Elements() const { return elements; }

    /// Returns the function that replaces the code of the states, if any.
    const Tokens& Example() const { return example; }

    /// Returns the variables and aliases of the function that returns the entry.
    const QVector<Definition>& Locals() const { return locals; }

private:
    void Take(const SourceFile& file);

    QString fileName;
    QStringList includes;
    QStringList usings;
    QVector<Definition> definitions;
    QVector<Definition> locals;
    QVector<Tokens> elements;
    Tokens example;
};

/// Returns statements that create the widget of a state: those of the function that creates it, then those of the
/// function that applies the state. Functions that are called once are inlined. The parent is called `parent`. Empty
/// for unknown states.
Tokens StatementsOf(const Scope& scope, int state);

} // namespace Zelkor::Catalogue
