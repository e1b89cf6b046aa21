#pragma once

#include <Catalogue/Catalogue.h>
#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/Input.h>
#include <Support/LeakCheck.h>

#include <QMetaProperty>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <memory>
#include <numeric>
#include <utility>

/// Applies a built-in style sheet, or only its icons for an empty name, unless it is in use.
inline void ApplySheet(const QString& name)
{
    static QString current = QStringLiteral("none");
    ZStyleSheet sheet = *Zelkor::Examples::LoadStyleSheet(name.isEmpty() ? "dark" : name);
    if (name.isEmpty())
        sheet.text.clear();
    // Parsing is slow.
    if (std::exchange(current, name) != name || qApp->styleSheet() != sheet.text)
        sheet.apply();
}

using Support::Settle;

/// Returns the widget and its descendants; an empty list for null.
inline QVector<QPointer<QWidget>> PartsOf(QWidget* widget)
{
    QVector<QPointer<QWidget>> parts;
    if (widget) {
        parts.append(widget);
        for (QWidget* part : widget->findChildren<QWidget*>())
            parts.append(part);
    }
    return parts;
}

/// A window that owns one widget of the catalogue between two buttons.
class EntryWindow
{
public:
    explicit EntryWindow(const std::function<QWidget*(QWidget* parent)>& create) : window(new QWidget)
    {
        auto* layout = new QVBoxLayout(window);
        // The order of creation is the tab order.
        before = new QPushButton(QStringLiteral("before"), window);
        widget = create(window);
        after = new QPushButton(QStringLiteral("after"), window);
        for (QWidget* part : {static_cast<QWidget*>(before), widget.data(), static_cast<QWidget*>(after)})
            layout->addWidget(part, 0, Qt::AlignLeading | Qt::AlignTop);
    }

    EntryWindow(const Zelkor::Catalogue::Entry& entry, const Zelkor::Catalogue::State& state)
        : EntryWindow([&](QWidget* parent) { return CreateInState(entry, state, parent); })
    {}

    ~EntryWindow() { delete window; }

    void Show()
    {
        window->show();
        Support::SetActiveWindow(window);
        // qWaitForWindowActive() would sleep for most of the test.
        QCoreApplication::processEvents();
        QVERIFY(window->isActiveWindow());
    }

    /// Shows the window at a fixed place and size, inactive and without a focused part: two such windows look alike.
    void ShowInactive()
    {
        window->setAttribute(Qt::WA_ShowWithoutActivating);
        window->layout()->setSizeConstraint(QLayout::SetNoConstraint);
        window->setGeometry(40, 40, 760, 760);
        // The offscreen platform activates each window that is shown.
        window->setFocusPolicy(Qt::StrongFocus);
        window->setFocus();
        window->show();
        Settle();
        Support::SetActiveWindow(nullptr);
    }

    /// The visible, enabled parts of the widget with the focus policy Qt::TabFocus, without focus proxies.
    QVector<QPointer<QWidget>> KeyboardParts() const
    {
        QVector<QPointer<QWidget>> parts;
        for (const QPointer<QWidget>& part : PartsOf(widget)) {
            if (part->window() == window && part->isVisible() && part->isEnabled() && !part->focusProxy() &&
                (part->focusPolicy() & Qt::TabFocus))
                parts.append(part);
        }
        return parts;
    }

    /// Sends a key to the window as the window system does. Returns false when that deleted the window.
    bool Type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        if (window)
            QTest::keyPress(window->windowHandle(), key, modifiers);
        if (window)
            QTest::keyRelease(window->windowHandle(), key, modifiers);
        return window;
    }

    QPointer<QWidget> window;
    QPointer<QWidget> widget;
    QPushButton* before;
    QPushButton* after;
};

inline QVector<int> AllStates(const Zelkor::Catalogue::Entry& entry)
{
    QVector<int> states(entry.states.size());
    std::iota(states.begin(), states.end(), 0);
    return states;
}

/// The states that slow tests cover: all; only the pictured one with the address sanitizer and on Windows, where
/// windows are slow under Wine.
inline QVector<int> TestedStates(const Zelkor::Catalogue::Entry& entry)
{
#if defined(__SANITIZE_ADDRESS__) || defined(Q_OS_WIN)
    return {entry.pictured};
#else
    return AllStates(entry);
#endif
}

/// Adds a row for each variant and state of each widget, with the columns className, state and variant (an index).
inline void AddRows(QVector<int> (*statesOf)(const Zelkor::Catalogue::Entry&) = AllStates,
                    const QStringList& variants = {""})
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("variant");
    for (int variant = 0; variant < variants.size(); ++variant) {
        for (const auto& entry : Zelkor::Catalogue::Entries()) {
            for (const int state : statesOf(entry)) {
                QStringList name{entry.className, entry.states[state].name, variants[variant]};
                name.removeAll(QString());
                QTest::newRow(qPrintable(name.join(", "))) << entry.className << state << variant;
            }
        }
    }
}

/// Adds a row for each widget that `isWanted` accepts, with the column className.
inline void AddRowsOfEntries(bool (*isWanted)(const Zelkor::Catalogue::Entry&) = [](auto&) { return true; })
{
    QTest::addColumn<QString>("className");
    for (const auto& entry : Zelkor::Catalogue::Entries()) {
        if (isWanted(entry))
            QTest::newRow(qPrintable(entry.className)) << entry.className;
    }
}

/// The names of the rows of a table, which AddRows() takes as variants.
template<class Table>
QStringList NamesOf(const Table& table)
{
    QStringList names;
    for (const auto& row : table)
        names.append(row.name);
    return names;
}

/// Whether the library and not Qt declares a property.
inline bool IsOurs(const QMetaProperty& property)
{
    const QString className = QString(property.enclosingMetaObject()->className()).section("::", -1);
    return !className.startsWith('Q') || Zelkor::Catalogue::FindEntry(className);
}

/// Adds a row for each writable property of each widget that `isWanted` accepts, with the columns className,
/// state (the pictured one) and property.
inline void AddRowsOfProperties(bool (*isWanted)(const QMetaProperty&))
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<int>("state");
    QTest::addColumn<QByteArray>("property");
    for (const auto& entry : Zelkor::Catalogue::Entries()) {
        QWidget parent;
        const QMetaObject* meta = CreateBare(entry, &parent)->metaObject();
        for (int i = 0; i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            if (property.isWritable() && meta->indexOfProperty(property.name()) == i && isWanted(property))
                QTest::addRow("%s, %s", qPrintable(entry.className), property.name())
                    << entry.className << entry.pictured << QByteArray(property.name());
        }
    }
}

inline const Zelkor::Catalogue::Entry& EntryOfRow()
{
    QFETCH(QString, className);
    return *Zelkor::Catalogue::FindEntry(className);
}

inline const Zelkor::Catalogue::State& StateOfRow()
{
    QFETCH(int, state);
    return EntryOfRow().states[state];
}

inline std::unique_ptr<EntryWindow> WindowOfRow()
{
    return std::make_unique<EntryWindow>(EntryOfRow(), StateOfRow());
}
