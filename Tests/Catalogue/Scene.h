#pragma once

#include <Catalogue/Catalogue.h>

#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>
#include <QtTest>

#include <memory>
#include <numeric>

/// The widget and all its parts; nothing for a widget that is gone.
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

/// A window that holds one widget of the catalogue between two buttons.
class Scene
{
public:
    Scene(const Zelkor::Catalogue::Entry& entry, const Zelkor::Catalogue::State& state) : window(new QWidget)
    {
        auto* layout = new QVBoxLayout(window);
        // Created one after the other, which makes the order of Tab.
        before = new QPushButton(QStringLiteral("before"), window);
        widget = Zelkor::Catalogue::CreateInState(entry, state, window);
        after = new QPushButton(QStringLiteral("after"), window);
        for (QWidget* part : {static_cast<QWidget*>(before), widget.data(), static_cast<QWidget*>(after)})
            layout->addWidget(part, 0, Qt::AlignLeading);
    }

    ~Scene() { delete window; }

    void Show()
    {
        window->show();
        QApplication::setActiveWindow(window);
        // Waiting the usual way would sleep for most of the test.
        QCoreApplication::processEvents();
        QVERIFY(window->isActiveWindow());
    }

    /// The visible parts of the widget that take the keyboard, itself included; without those that only pass it on.
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

    /// A key for whoever has the focus, the way it comes from the window system; true when it was pressed and released.
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

/// Processes events and deferred deletes until nothing is left to do at once.
inline void Settle()
{
    for (int i = 0; i < 2; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

inline QVector<int> AllStates(const Zelkor::Catalogue::Entry& entry)
{
    QVector<int> places(entry.states.size());
    std::iota(places.begin(), places.end(), 0);
    return places;
}

/// The states that the slow tests go through: all of them; under the address sanitizer and on Windows, whose windows
/// cost several times as much under Wine, the pictured one.
inline QVector<int> TestedStates(const Zelkor::Catalogue::Entry& entry)
{
#if defined(__SANITIZE_ADDRESS__) || defined(Q_OS_WIN)
    return {entry.pictured};
#else
    return AllStates(entry);
#endif
}

/// Rows for every widget in some of its states: "className" and "state", the place of the state.
inline void AddRowsOfStates(QVector<int> (*places)(const Zelkor::Catalogue::Entry&))
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<int>("state");
    for (const Zelkor::Catalogue::Entry& entry : Zelkor::Catalogue::Entries()) {
        for (const int place : places(entry))
            QTest::addRow("%s, %s", qPrintable(entry.className), qPrintable(entry.states[place].name))
                << entry.className << place;
    }
}

inline void AddRowsOfAllStates()
{
    AddRowsOfStates(AllStates);
}

inline std::unique_ptr<Scene> SceneOfThisRow()
{
    QFETCH(QString, className);
    QFETCH(int, state);
    const Zelkor::Catalogue::Entry& entry = *Zelkor::Catalogue::FindEntry(className);
    return std::make_unique<Scene>(entry, entry.states[state]);
}
