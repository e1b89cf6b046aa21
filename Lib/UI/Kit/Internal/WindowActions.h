#pragma once

#include <Qt>

class QWidget;
class QWindow;

namespace Zelkor::Vx::UI::Kit {

/// Returns the directions in which the size of a window is not fixed.
Qt::Orientations ResizableDirections(const QWidget* window);

/// Returns whether a window is maximised or full screen, so that its edges are those of the screen.
bool FillsScreen(const QWidget* window);

/// Returns whether the window flags and the size limits of a window allow to maximise it.
bool CanMaximize(const QWidget* window);

/// Restores a window that fills the screen, and maximises any other. May delete the window.
void ToggleMaximized(QWidget* window);

/// Returns the native window that the window system can move or resize after a press on a part of it. Null for a widget
/// inside another window, and on X11 for a press in a native child: Qt then passes on the last position of the pointer
/// in the window itself, which is outdated.
QWindow* SystemWindow(const QWidget* window, const QWidget* pressed);

} // namespace Zelkor::Vx::UI::Kit
