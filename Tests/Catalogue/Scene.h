#pragma once

#include <Gallery/Catalogue.h>

#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>
#include <QtTest>

#include <memory>

/// A window that holds one widget of the catalogue between two buttons.
class Scene
{
public:
    Scene(const Zelkor::Gallery::Entry& entry, const Zelkor::Gallery::State& state) : window(new QWidget)
    {
        auto* layout = new QVBoxLayout(window);
        // Created one after the other, which makes the order of Tab.
        before = new QPushButton(QStringLiteral("before"), window);
        widget = Zelkor::Gallery::CreateInState(entry, state, window);
        after = new QPushButton(QStringLiteral("after"), window);
        for (QWidget* part : {static_cast<QWidget*>(before), widget.data(), static_cast<QWidget*>(after)})
            layout->addWidget(part, 0, Qt::AlignLeading);
    }

    ~Scene() { delete window; }

    void Show()
    {
        window->show();
        QApplication::setActiveWindow(window);
        QVERIFY(QTest::qWaitForWindowActive(window));
    }

    /// The visible parts of the widget that take the keyboard, itself included; without those that only pass it on.
    QVector<QPointer<QWidget>> KeyboardParts() const
    {
        QVector<QPointer<QWidget>> parts;
        if (!widget)
            return parts;
        for (QWidget* part : QList<QWidget*>{widget} + widget->findChildren<QWidget*>()) {
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

/// Rows for every widget in every state: "className" and "state", the place of the state.
inline void AddRowsOfAllStates()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<int>("state");
    for (const Zelkor::Gallery::Entry& entry : Zelkor::Gallery::Entries()) {
        for (int i = 0; i < entry.states.size(); ++i)
            QTest::addRow("%s, %s", qPrintable(entry.className), qPrintable(entry.states[i].name))
                << entry.className << i;
    }
}

inline std::unique_ptr<Scene> SceneOfThisRow()
{
    QFETCH(QString, className);
    QFETCH(int, state);
    const Zelkor::Gallery::Entry& entry = *Zelkor::Gallery::FindEntry(className);
    return std::make_unique<Scene>(entry, entry.states[state]);
}
