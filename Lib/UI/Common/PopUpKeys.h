#pragma once

#include <QKeyEvent>

namespace Zelkor::Vx::UI::Common {

/// Returns whether a key opens combo boxes and menu buttons: Down, Alt+Down, F4 or the menu key.
inline bool OpensPopUp(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const bool isPlain = modifiers == Qt::NoModifier;
    if (event.key() == Qt::Key_Down)
        return isPlain || modifiers == Qt::AltModifier;
    return isPlain && (event.key() == Qt::Key_F4 || event.key() == Qt::Key_Menu);
}

} // namespace Zelkor::Vx::UI::Common
