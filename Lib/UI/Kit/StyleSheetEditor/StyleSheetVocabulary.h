#pragma once

#include <QHash>
#include <QStringList>

class QWidget;

/// The names that a style sheet of the running application can have.
namespace Zelkor::Vx::UI::Kit::StyleSheetVocabulary {

/// What there is at one time. Sorted, each name once.
struct Names
{
    QStringList classes;                   ///< of widgets and what they derive from; written with dashes for "::"
    QStringList objects;                   ///< object names
    QHash<QString, QStringList> settables; ///< by class, what "qproperty-" can set, inherited ones included
    QStringList attributes;                ///< properties that a selector can ask for, dynamic ones included
};

/// The names in all widgets of the application, but for those in `except`. GUI thread.
Names Collect(const QWidget* except = nullptr);

/// Length of the piece of a name at the end of `before`; 0 when it ends with something else.
int PrefixLength(const QString& before);

/// The names, by the alphabet, that can stand at the end of a sheet's text `before`, in the place of the piece of a
/// name there. They depend on where that is: in a selector or a declaration, after "#" or ":".
/// With `declarationsAlone`, the sheet has no selector.
QStringList Candidates(const QString& before, const Names& names, bool declarationsAlone = false);

} // namespace Zelkor::Vx::UI::Kit::StyleSheetVocabulary
