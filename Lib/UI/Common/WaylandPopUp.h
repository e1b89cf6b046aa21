#pragma once

#include <QGuiApplication>
#include <QRect>
#include <QVariant>
#include <QWidget>
#include <QWindow>

/// Places pop-ups on Wayland, where only the compositor knows positions on the screen. Global coordinates of Qt are
/// then relative to the transient parent.
namespace Zelkor::Vx::UI::Common {

inline bool IsWayland()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

/// Returns the place for pop-ups of a widget in global coordinates: its window, if that fills the screen, or else
/// everything, since the position of the window is unknown.
inline QRect WaylandRoom(const QWidget& widget)
{
    constexpr int FAR = 1 << 24;
    const QWidget* window = widget.window();
    return window->isMaximized() || window->isFullScreen() ? window->geometry() : QRect(-FAR, -FAR, 2 * FAR, 2 * FAR);
}

/// What the compositor may do with a pop-up that does not fit on the screen; values of xdg_positioner.
enum PopUpAdjustment : uint { SLIDE_X = 1, SLIDE_Y = 2, FLIP_X = 4, FLIP_Y = 8 };

/// Attaches a point of the pop-up to a point of a rectangle.
struct PopUpAnchor
{
    QRect rect;        ///< in coordinates of the parent window
    Qt::Edges anchor;  ///< edge or corner of the rectangle; between two opposite edges, the middle
    Qt::Edges gravity; ///< direction in which the pop-up extends from there
    uint adjustment;   ///< flags of `PopUpAdjustment`
};

/// Sets the properties from which newer versions of Qt make their request to the compositor. Versions that ignore them
/// place the pop-up at its position, even off the screen; so does an empty rectangle. Call before the pop-up is shown.
inline void SetPopUpAnchor(const QWidget& popUp, const PopUpAnchor& placement)
{
    QWindow* window = popUp.windowHandle();
    if (!window)
        return;
    const auto set = [&](const char* name, const QVariant& value) {
        window->setProperty(name, placement.rect.isValid() ? value : QVariant());
    };
    set("_q_waylandPopupAnchorRect", placement.rect);
    set("_q_waylandPopupAnchor", QVariant::fromValue(placement.anchor));
    set("_q_waylandPopupGravity", QVariant::fromValue(placement.gravity));
    set("_q_waylandPopupConstraintAdjustment", placement.adjustment);
}

} // namespace Zelkor::Vx::UI::Common
