#pragma once

namespace Zelkor::Vx::UI::Kit {

/// What a point of a frameless window belongs to. Left and right are visual, in any layout direction.
enum class WindowPart {
    Client,         ///< content; receives the mouse as usual
    Caption,        ///< moves the window; a double click maximises and restores it
    MaximizeButton, ///< where the platform offers its window layouts
    Left,           ///< this and the following resize the window
    TopLeft,
    Top,
    TopRight,
    Right,
    BottomRight,
    Bottom,
    BottomLeft,
};

} // namespace Zelkor::Vx::UI::Kit
