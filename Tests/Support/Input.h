#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>
#include <QtTest>

namespace Support {

/// Activates a window, or none, without a window system. Since Qt 6.5 the function is deprecated for applications.
inline void SetActiveWindow(QWidget* window)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(window);
    QT_WARNING_POP
}

/// Shows a window, activates it and waits until it is active.
inline void ShowActive(QWidget& window)
{
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

/// Adds a row for each layout direction, in the column direction.
inline void AddDirectionRows()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

/// Sends a wheel event to a widget. Returns whether the widget accepted it.
inline bool TurnWheel(QWidget* widget, const QPoint& angle)
{
    constexpr QPoint PLACE(5, 5);
    QWheelEvent event(PLACE, widget->mapToGlobal(PLACE), {}, angle, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

/// Sends a mouse move event to a widget, by default as part of a drag.
inline void MoveMouse(QWidget* widget, const QPoint& point, Qt::MouseButtons buttons = Qt::LeftButton)
{
    QMouseEvent event(QEvent::MouseMove, point, widget->mapToGlobal(point), Qt::NoButton, buttons, {});
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace Support
