#pragma once

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

namespace Support {

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
