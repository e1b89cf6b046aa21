#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVector>

#include <functional>

class QWidget;

namespace Zelkor::Gallery {

/// The texts of the catalogue, for translation.
class Catalogue
{
    Q_DECLARE_TR_FUNCTIONS(Catalogue)
};

/// A situation in which a widget is worth looking at.
struct State
{
    QString name;
    std::function<void(QWidget*)> apply; ///< brings a fresh widget of the entry, not shown yet, into this state
    std::function<QWidget*(QWidget* parent)> create = nullptr; ///< where the constructor decides; else the entry's
};

/// One widget of the catalogue.
///
/// What `create` makes needs nothing from outside, may be shown or deleted at any time, and gives no warnings. The
/// parent owns it. GUI thread.
struct Entry
{
    QString className;    ///< without namespace; the name of the page
    QString group;        ///< the heading under which the page is listed
    QString description;  ///< one sentence
    QString styleSection; ///< the heading of its part in the style sheets
    QString icon;         ///< base name of an icon of the style sheets
    std::function<QWidget*(QWidget* parent)> create;
    QVector<State> states; ///< at least one
};

/// Every widget, in the order of the pages: gallery, Designer, pictures and the tests over every widget are driven by
/// this. A new widget is a new entry in the function of its group.
const QVector<Entry>& Entries();

/// The entry of a class, null for a class that is not in the catalogue.
const Entry* FindEntry(const QString& className);

/// A new widget of `entry` in `state`, owned by `parent`.
QWidget* CreateInState(const Entry& entry, const State& state, QWidget* parent);

// The groups, each in a file of its own.
QVector<Entry> ButtonEntries();
QVector<Entry> LabelledButtonEntries();
QVector<Entry> ChoiceEntries();
QVector<Entry> MediaEntries();
QVector<Entry> MeterEntries();
QVector<Entry> IndicatorEntries();
QVector<Entry> PanelEntries();
QVector<Entry> TabEntries();
QVector<Entry> WindowEntries();
QVector<Entry> HintEntries();
QVector<Entry> EffectEntries();
QVector<Entry> KitEntries();
QVector<Entry> SliderEntries();
QVector<Entry> TimeEntries();
QVector<Entry> MatrixEntries();
QVector<Entry> FieldEntries();
QVector<Entry> EditorEntries();

/// A state whose function takes the widget as what it is.
template<class Widget, class Function>
State MakeState(const QString& name, Function apply)
{
    return {name, [apply](QWidget* widget) { apply(*static_cast<Widget*>(widget)); }};
}

/// A state for which a widget is made in a way of its own.
State MadeState(const QString& name, std::function<QWidget*(QWidget* parent)> create);

/// A state for any widget: as it comes, but disabled.
State DisabledState();

} // namespace Zelkor::Gallery
