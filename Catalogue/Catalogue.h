#pragma once

#include <QCoreApplication>
#include <QMetaObject>
#include <QString>
#include <QVariantMap>
#include <QVector>

#include <functional>
#include <type_traits>

class QStackedWidget;
class QWidget;

namespace Zelkor::Catalogue {

/// Translates the texts of the catalogue.
class EntryText
{
    Q_DECLARE_TR_FUNCTIONS(EntryText)
};

/// A situation in which a widget is worth looking at.
struct State
{
    QString name;
    std::function<void(QWidget*)> apply; ///< brings a fresh widget of the entry, not shown yet, into this state
    std::function<QWidget*(QWidget* parent)> create = nullptr; ///< where the constructor decides; else the entry's
};

/// What form editors, and forms that are loaded at run time, need to know of a widget.
struct FormUse
{
    const QMetaObject* metaObject = nullptr; ///< null for what is not for forms
    QVariantMap properties;                  ///< numbers and texts that a new one starts with
    QString reasonAgainst;                   ///< why it is not for forms
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
    /// The object that the entry is about, as its constructor leaves it, where `create` makes another one or sets
    /// properties of it.
    std::function<QObject*(QWidget* parent)> bare = nullptr;
    int pictured = 0;  ///< the state of which the reference has a picture
    FormUse form = {}; ///< said of every exported class by InForms or NotInForms
};

/// Every widget, in the order of the pages: gallery, Designer, pictures and the tests over every widget are driven by
/// this. A new widget is a new entry in the function of its group.
const QVector<Entry>& Entries();

/// Recreates the entries with texts in the current language. References to earlier entries become invalid. GUI thread.
void RetranslateEntries();

/// The entry of a class, null for a class that is not in the catalogue.
const Entry* FindEntry(const QString& className);

/// A new widget of `entry` in `state`, owned by `parent`.
QWidget* CreateInState(const Entry& entry, const State& state, QWidget* parent);

/// A new object of the entry's own class with the defaults of its properties, owned by `parent`.
QObject* CreateBare(const Entry& entry, QWidget* parent);

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

/// For `Entry::bare`, where nothing but the parent goes into the constructor.
template<class Object>
QObject* MakeBare(QWidget* parent)
{
    return new Object(parent);
}

/// A state for which a widget is made in a way of its own.
State MadeState(const QString& name, std::function<QWidget*(QWidget* parent)> create);

/// Gives a stack a page for each text. The button of each leads to the next one.
void AddSamplePages(QStackedWidget* stack, const QStringList& texts);

/// The entry of a widget for forms, which starts with `properties` there.
template<class Widget>
Entry InForms(Entry entry, const QVariantMap& properties = {})
{
    entry.bare = MakeBare<Widget>;
    entry.form = {&Widget::staticMetaObject, properties, {}};
    return entry;
}

/// The entry of an exported class that has no place in a form.
Entry NotInForms(Entry entry, const QString& reason);

/// A state for any widget: as it comes, but disabled.
State DisabledState();

} // namespace Zelkor::Catalogue
