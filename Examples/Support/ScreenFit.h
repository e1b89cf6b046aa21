#pragma once

class QWidget;

namespace Zelkor::Examples {

/// Shrinks a window to fit its screen, frame included.
void FitToScreen(QWidget* window);

} // namespace Zelkor::Examples
