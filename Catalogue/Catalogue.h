#pragma once

#include <QCoreApplication>
#include <QMetaObject>
#include <QString>
#include <QVariantMap>
#include <QVector>

#include <functional>
#include <type_traits>
#include <utility>

class QStackedWidget;
class QWidget;

namespace Zelkor::Catalogue {

/// Translates the texts of the catalogue.
class EntryText
{
    Q_DECLARE_TR_FUNCTIONS(EntryText)
};

/// A state of a widget that the gallery shows and the tests cover.
struct State
{
    QString name;
    std::function<void(QWidget*)> apply; ///< applies the state to a new, hidden widget of the entry
    std::function<QWidget*(QWidget* parent)> create = nullptr; ///< replaces the entry's `create` if set
};

/// Properties of a widget in form editors and in forms that are loaded at run time.
struct FormUse
{
    const QMetaObject* metaObject = nullptr; ///< null if forms cannot contain the widget
    /// Initial numbers, texts, and names of enumerators. Qt 5 would register the type of an enumerator, and selectors
    /// of style sheets such as `[orientation="1"]` would no longer match.
    QVariantMap properties;
    QString reasonAgainst; ///< why forms cannot contain it
    QString header;        ///< what code made from forms includes
};

/// One widget of the catalogue.
///
/// A created widget is self-contained: it can be shown or deleted at any time, and causes no warnings. The parent owns
/// it. GUI thread.
struct Entry
{
    QString className;    ///< without namespace; the name of the page
    QString group;        ///< the heading under which the page is listed
    QString description;  ///< one sentence
    QString styleSection; ///< the heading of its section in the style sheets
    QString icon;         ///< base name of a style sheet icon
    std::function<QWidget*(QWidget* parent)> create;
    QVector<State> states; ///< at least one
    /// Creates an object of the entry's class with default properties, where `create` returns a different object or
    /// sets properties.
    std::function<QObject*(QWidget* parent)> bare = nullptr;
    int pictured = 0;  ///< index of the state in the pictures of the reference
    FormUse form = {}; ///< set for every class by InForms(), KitInForms() or NotInForms()
    /// Opens a real window of the class, where the states only embed a copy; set by WithExample().
    std::function<void(QWidget* parent)> example = nullptr;
};

/// Returns all entries, in the order of the gallery's pages. Add a widget in the function of its group.
const QVector<Entry>& Entries();

/// Recreates the entries with texts in the current language. References to earlier entries become invalid. GUI thread.
void RetranslateEntries();

/// Returns the entry of a class without its namespace, or that of QtWidgetsEntry(), or null.
const Entry* FindEntry(const QString& className);

/// Creates a widget of `entry` in `state`, owned by `parent`.
QWidget* CreateInState(const Entry& entry, const State& state, QWidget* parent);

/// Creates an object of the entry's class with default properties, owned by `parent`.
QObject* CreateBare(const Entry& entry, QWidget* parent);

// One function and one source file per group.
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

/// Returns a state whose function takes the widget by its type.
template<class Widget, class Function>
State MakeState(const QString& name, Function apply)
{
    return {name, [apply](QWidget* widget) { apply(*static_cast<Widget*>(widget)); }};
}

/// For `Entry::bare`: constructs an object from its parent alone.
template<class Object>
QObject* MakeBare(QWidget* parent)
{
    return new Object(parent);
}

/// Returns a state with its own function that creates the widget.
State MadeState(const QString& name, std::function<QWidget*(QWidget* parent)> create);

/// Adds a page for each text to a stack. The button of a page opens the next one.
void AddSamplePages(QStackedWidget* stack, const QStringList& texts);

/// Returns the entry with form support; a new widget in a form starts with `properties`.
template<class Widget>
Entry InForms(Entry entry, const QVariantMap& properties = {})
{
    entry.bare = MakeBare<Widget>;
    entry.form = {&Widget::staticMetaObject, properties, {}, "UI/Widgets/" + entry.className + ".h"};
    return entry;
}

/// As InForms(), for a class of the kit.
template<class Widget>
Entry KitInForms(Entry entry, const QVariantMap& properties = {})
{
    entry = InForms<Widget>(std::move(entry), properties);
    entry.form.header = "UI/Kit/" + entry.className + ".h";
    return entry;
}

/// Returns the entry of a class that forms cannot contain.
Entry NotInForms(Entry entry, const QString& reason);

/// Returns the entry with an example that replaces the code of its states.
Entry WithExample(Entry entry, std::function<void(QWidget* parent)> example);

/// Returns a state that only disables the widget.
State DisabledState();

} // namespace Zelkor::Catalogue
