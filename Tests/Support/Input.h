#pragma once

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

namespace Support {

/// Turns the wheel over a widget; whether it took that.
inline bool TurnWheel(QWidget* widget, const QPoint& angle)
{
    constexpr QPoint PLACE(5, 5);
    QWheelEvent event(PLACE, widget->mapToGlobal(PLACE), {}, angle, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

/// Moves the mouse in a widget, with buttons down if that is a part of a drag.
inline void MoveMouse(QWidget* widget, const QPoint& point, Qt::MouseButtons buttons = Qt::LeftButton)
{
    QMouseEvent event(QEvent::MouseMove, point, widget->mapToGlobal(point), Qt::NoButton, buttons, {});
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace Support
