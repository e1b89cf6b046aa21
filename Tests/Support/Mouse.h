#pragma once

#include <QPoint>

namespace Support {

/// Moves and clicks the real pointer of the window system. On X11 this uses xdotool; the running test fails without it.
void MovePointer(const QPoint& global);
void Click(const QPoint& global);

/// Presses a button (1 is the left one), moves by one pixel, then by `way`, and releases. Returns whether the window
/// system grabbed the pointer for an interactive move, which may move the window only at the end.
bool Drag(const QPoint& global, const QPoint& way, int button = 1);

} // namespace Support
