#pragma once

#include <QPoint>

namespace Support {

/// The real pointer of the window system: in X11 moved and clicked by xdotool, and the running test fails when that is
/// not there.
void MovePointer(const QPoint& global);
void Click(const QPoint& global);

/// Presses the button (1 is the left one), moves on by one pixel, by `way`, and releases. True when the window system
/// took the pointer after the first pixel, for a move that it does itself; it may move the window at the end.
bool Drag(const QPoint& global, const QPoint& way, int button = 1);

} // namespace Support
