#pragma once

class QWidget;

namespace Zelkor::Vx::UI {
class CustomTitleBar;
}

namespace Zelkor::Examples {

/// Replaces the frame of a window, which must have its layout, by a custom title bar and edges that resize the window.
/// Returns the title bar, owned by the window.
Vx::UI::CustomTitleBar* ReplaceFrame(QWidget* window);

} // namespace Zelkor::Examples
