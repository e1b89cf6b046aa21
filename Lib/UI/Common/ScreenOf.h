#pragma once

#include <UI/Common/WaylandPopUp.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace Zelkor::Vx::UI::Common {

/// Returns the screen at the centre of a widget, which need not be that of its window. Null without screens.
inline QScreen* ScreenOf(const QWidget& widget)
{
    QScreen* screen = IsWayland() ? nullptr : QGuiApplication::screenAt(widget.mapToGlobal(widget.rect().center()));
    return screen ? screen : widget.screen();
}

} // namespace Zelkor::Vx::UI::Common
