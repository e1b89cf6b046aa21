#pragma once

#include <QPoint>

namespace Support {

/// The real pointer of the window system, moved and clicked by xdotool. Fails the running test when that is not there.
void MovePointer(const QPoint& global);
void Click(const QPoint& global);

} // namespace Support
