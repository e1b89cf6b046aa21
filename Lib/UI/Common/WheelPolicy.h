#pragma once

#include <QWheelEvent>
#include <QWidget>

namespace Zelkor::Vx::UI::Common {

/// Whether `control` takes a wheel event. One that takes the wheel `onlyInFocus` leaves it to its parent while it has
/// no focus, so that a wheel turned over a panel full of controls scrolls the panel and changes nothing.
inline bool AcceptWheelEvent(const QWidget& control, QWheelEvent& event, bool onlyInFocus)
{
    const bool takes = !onlyInFocus || control.hasFocus();
    event.setAccepted(takes);
    return takes;
}

/// Whether a turn of the wheel gives `control` the focus, as it does by itself with the fields of Qt that step. One
/// that takes the wheel only in focus must not get the focus this way. A policy without the wheel that somebody else
/// chose stays.
inline void SetWheelFocusEnabled(QWidget& control, bool on)
{
    if (control.focusPolicy() == (on ? Qt::StrongFocus : Qt::WheelFocus))
        control.setFocusPolicy(on ? Qt::WheelFocus : Qt::StrongFocus);
}

} // namespace Zelkor::Vx::UI::Common
