#pragma once

#include <QWheelEvent>
#include <QWidget>

namespace Zelkor::Vx::UI::Common {

/// Accepts or ignores a wheel event for `control` and returns whether it was accepted. With `onlyInFocus`, a control
/// without the focus ignores it, so that the wheel scrolls the panel around and does not change values.
inline bool AcceptWheelEvent(const QWidget& control, QWheelEvent& event, bool onlyInFocus)
{
    event.setAccepted(!onlyInFocus || control.hasFocus());
    return event.isAccepted();
}

/// Sets whether the wheel gives `control` the focus, as it does by default in spin boxes of Qt. A control that uses the
/// wheel only in focus must not get the focus this way. Other focus policies are not changed.
inline void SetWheelFocusEnabled(QWidget& control, bool on)
{
    if (control.focusPolicy() == (on ? Qt::StrongFocus : Qt::WheelFocus))
        control.setFocusPolicy(on ? Qt::WheelFocus : Qt::StrongFocus);
}

} // namespace Zelkor::Vx::UI::Common
