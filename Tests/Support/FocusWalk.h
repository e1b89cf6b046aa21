#pragma once

#include <QAccessible>
#include <QStringList>
#include <QWidget>
#include <QtTest>

namespace Support {

/// Returns the accessible names of all widgets that Tab or Backtab focuses, sorted, without duplicates.
inline QStringList NamesOnTheWay(const QWidget& window, Qt::Key key)
{
    constexpr int MOST_STEPS = 500;
    const Qt::KeyboardModifiers modifiers = key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier;
    const QWidget* start = window.focusWidget();
    QStringList names;
    for (int i = 0; i < MOST_STEPS && (i == 0 || window.focusWidget() != start); ++i) {
        QTest::keyClick(window.windowHandle(), key, modifiers);
        // On some platforms, Qt uses the current text of a combo box as its name.
        const QString given = window.focusWidget()->accessibleName();
        const auto* accessible = QAccessible::queryAccessibleInterface(window.focusWidget());
        names.append(given.isEmpty() ? accessible->text(QAccessible::Name) : given);
    }
    names.removeDuplicates();
    names.sort();
    return names;
}

} // namespace Support
