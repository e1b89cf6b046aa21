#pragma once

#include <QHash>
#include <QStringList>

class QWidget;

/// The names that a style sheet of the running application may use.
namespace Zelkor::Vx::UI::Kit::StyleSheetVocabulary {

/// A snapshot of all names, sorted and without duplicates.
struct Names
{
    QStringList classes;                   ///< widget classes and their base classes, with "--" for "::"
    QStringList objects;                   ///< object names
    QHash<QString, QStringList> settables; ///< "qproperty-" names by class, including inherited ones
    QStringList attributes;                ///< properties for attribute selectors, including dynamic ones
};

/// Collects the names of all widgets except `except` and its descendants. GUI thread only.
Names Collect(const QWidget* except = nullptr);

/// Returns the length of the incomplete name at the end of `before`, or 0.
int PrefixLength(const QString& before);

/// Returns the names, sorted, that can replace the incomplete name at the end of `before`, the text of a sheet up to
/// the cursor. With `declarationsOnly`, the sheet has no selector.
QStringList Completions(const QString& before, const Names& names, bool declarationsOnly = false);

} // namespace Zelkor::Vx::UI::Kit::StyleSheetVocabulary
