#pragma once

#include <QString>
#include <QStringList>

namespace Zelkor::Catalogue {

struct Entry;

/// C++ that creates a widget in a state, to be copied into the constructor of a widget, which becomes the parent.
struct SampleCode
{
    QStringList includes; ///< the names between angle brackets
    QString declarations; ///< using declarations, constants and functions at namespace scope
    QString statements;   ///< of the constructor

    /// Returns the parts in order, with comments between them.
    QString Text() const;
};

/// Extracts the code of a state from the catalogue's own source. Empty for unknown entries and states.
SampleCode CodeOf(const Entry& entry, int state);

/// Returns the header of an entry's class as includes name it; empty for unknown entries.
QString HeaderOf(const Entry& entry);

/// Returns the source file of an entry, relative to the source folder; empty for unknown entries.
QString SourceFileOf(const Entry& entry);

} // namespace Zelkor::Catalogue
