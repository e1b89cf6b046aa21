#pragma once

#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <QRect>

#include <map>
#include <set>
#include <utility>

/// The arithmetic of where a pop-up opens, on plain values in global screen coordinates. Internal.
namespace Zelkor::Vx::UI::PopUpPlacement {

using Anchor = ButtonWithPopUpContainer::PreferredPopupAnchor;
using Direction = ButtonWithPopUpContainer::PreferredPopupDirection;
using Placement = std::pair<Anchor, Direction>;

/// What is to be placed beside what.
struct Scene
{
    QRect button;
    QSize popUp;
    int hOffset = 0;
    int vOffset = 0;
};

/// Where a pop-up goes that would cover the button: to the other side of it. Nine pairs flip between below and above
/// and keep the horizontal alignment, two flip between right and left. Placements on the button itself have no other
/// side.
inline const std::map<Placement, Placement>& MirroredPlacements()
{
    using B = ButtonWithPopUpContainer;
    static const std::map<Placement, Placement> placements{
        {{B::ANCHOR_TOP_RIGHT, B::DIRECTION_DOWN_RIGHT}, {B::ANCHOR_TOP_LEFT, B::DIRECTION_DOWN_LEFT}},
        {{B::ANCHOR_BOTTOM_LEFT, B::DIRECTION_DOWN_RIGHT}, {B::ANCHOR_TOP_LEFT, B::DIRECTION_UP_RIGHT}},
        {{B::ANCHOR_BOTTOM_CENTER, B::DIRECTION_DOWN_RIGHT}, {B::ANCHOR_TOP_CENTER, B::DIRECTION_UP_RIGHT}},
        {{B::ANCHOR_BOTTOM_RIGHT, B::DIRECTION_DOWN_RIGHT}, {B::ANCHOR_TOP_RIGHT, B::DIRECTION_UP_RIGHT}},
        {{B::ANCHOR_BOTTOM_LEFT, B::DIRECTION_DOWN_CENTER}, {B::ANCHOR_TOP_LEFT, B::DIRECTION_UP_CENTER}},
        {{B::ANCHOR_BOTTOM_CENTER, B::DIRECTION_DOWN_CENTER}, {B::ANCHOR_TOP_CENTER, B::DIRECTION_UP_CENTER}},
        {{B::ANCHOR_BOTTOM_RIGHT, B::DIRECTION_DOWN_CENTER}, {B::ANCHOR_TOP_RIGHT, B::DIRECTION_UP_CENTER}},
        {{B::ANCHOR_TOP_LEFT, B::DIRECTION_DOWN_LEFT}, {B::ANCHOR_TOP_RIGHT, B::DIRECTION_DOWN_RIGHT}},
        {{B::ANCHOR_BOTTOM_LEFT, B::DIRECTION_DOWN_LEFT}, {B::ANCHOR_TOP_LEFT, B::DIRECTION_UP_LEFT}},
        {{B::ANCHOR_BOTTOM_CENTER, B::DIRECTION_DOWN_LEFT}, {B::ANCHOR_TOP_CENTER, B::DIRECTION_UP_LEFT}},
        {{B::ANCHOR_BOTTOM_RIGHT, B::DIRECTION_DOWN_LEFT}, {B::ANCHOR_TOP_RIGHT, B::DIRECTION_UP_LEFT}},
        {{B::ANCHOR_TOP_LEFT, B::DIRECTION_UP_RIGHT}, {B::ANCHOR_BOTTOM_LEFT, B::DIRECTION_DOWN_RIGHT}},
        {{B::ANCHOR_TOP_CENTER, B::DIRECTION_UP_RIGHT}, {B::ANCHOR_BOTTOM_CENTER, B::DIRECTION_DOWN_RIGHT}},
        {{B::ANCHOR_TOP_RIGHT, B::DIRECTION_UP_RIGHT}, {B::ANCHOR_BOTTOM_RIGHT, B::DIRECTION_DOWN_RIGHT}},
        {{B::ANCHOR_BOTTOM_RIGHT, B::DIRECTION_UP_RIGHT}, {B::ANCHOR_BOTTOM_LEFT, B::DIRECTION_UP_LEFT}},
        {{B::ANCHOR_TOP_LEFT, B::DIRECTION_UP_CENTER}, {B::ANCHOR_BOTTOM_LEFT, B::DIRECTION_DOWN_CENTER}},
        {{B::ANCHOR_TOP_CENTER, B::DIRECTION_UP_CENTER}, {B::ANCHOR_BOTTOM_CENTER, B::DIRECTION_DOWN_CENTER}},
        {{B::ANCHOR_TOP_RIGHT, B::DIRECTION_UP_CENTER}, {B::ANCHOR_BOTTOM_RIGHT, B::DIRECTION_DOWN_CENTER}},
        {{B::ANCHOR_TOP_LEFT, B::DIRECTION_UP_LEFT}, {B::ANCHOR_BOTTOM_LEFT, B::DIRECTION_DOWN_LEFT}},
        {{B::ANCHOR_TOP_CENTER, B::DIRECTION_UP_LEFT}, {B::ANCHOR_BOTTOM_CENTER, B::DIRECTION_DOWN_LEFT}},
        {{B::ANCHOR_TOP_RIGHT, B::DIRECTION_UP_LEFT}, {B::ANCHOR_BOTTOM_RIGHT, B::DIRECTION_DOWN_LEFT}},
        {{B::ANCHOR_BOTTOM_LEFT, B::DIRECTION_UP_LEFT}, {B::ANCHOR_BOTTOM_RIGHT, B::DIRECTION_UP_RIGHT}},
    };
    return placements;
}

/// The point that the pop-up is attached to. The offsets push it away from the button; right and bottom anchors lie
/// one pixel past the last column and row.
inline QPoint AnchorPoint(const Scene& scene, Anchor anchor)
{
    // Beyond any screen, and far from where the sums below would overflow.
    constexpr int FAR_AWAY = 1 << 24;
    const int h = qBound(-FAR_AWAY, scene.hOffset, FAR_AWAY);
    const int v = qBound(-FAR_AWAY, scene.vOffset, FAR_AWAY);
    const int left = -h;
    const int center = scene.button.width() / 2;
    const int right = scene.button.width() + h;
    const int top = -v;
    const int bottom = scene.button.height() + v;
    switch (anchor) {
    case ButtonWithPopUpContainer::ANCHOR_TOP_LEFT:
        return scene.button.topLeft() + QPoint(left, top);
    case ButtonWithPopUpContainer::ANCHOR_TOP_CENTER:
        return scene.button.topLeft() + QPoint(center, top);
    case ButtonWithPopUpContainer::ANCHOR_TOP_RIGHT:
        return scene.button.topLeft() + QPoint(right, top);
    case ButtonWithPopUpContainer::ANCHOR_BOTTOM_CENTER:
        return scene.button.topLeft() + QPoint(center, bottom);
    case ButtonWithPopUpContainer::ANCHOR_BOTTOM_RIGHT:
        return scene.button.topLeft() + QPoint(right, bottom);
    case ButtonWithPopUpContainer::ANCHOR_BOTTOM_LEFT:
    default:
        return scene.button.topLeft() + QPoint(left, bottom);
    }
}

/// From the attachment point to the pop-up's top left corner.
inline QPoint DirectionOffset(const Scene& scene, Direction direction)
{
    const int width = scene.popUp.width();
    const int height = scene.popUp.height();
    switch (direction) {
    case ButtonWithPopUpContainer::DIRECTION_DOWN_CENTER:
        return QPoint(-(width / 2), 0);
    case ButtonWithPopUpContainer::DIRECTION_DOWN_LEFT:
        return QPoint(-width, 0);
    case ButtonWithPopUpContainer::DIRECTION_UP_RIGHT:
        return QPoint(0, -height);
    case ButtonWithPopUpContainer::DIRECTION_UP_CENTER:
        return QPoint(-(width / 2), -height);
    case ButtonWithPopUpContainer::DIRECTION_UP_LEFT:
        return QPoint(-width, -height);
    case ButtonWithPopUpContainer::DIRECTION_DOWN_RIGHT:
    default:
        return QPoint(0, 0);
    }
}

/// The top left corner moved so that the pop-up lies on the screen. At the right and bottom edges one pixel stays
/// free; a pop-up larger than the screen keeps its left and top edges.
inline QPoint FitToScreen(const QRect& screen, const QSize& popUp, const QPoint& point)
{
    const int x = qMin(screen.right(), point.x() + popUp.width()) - popUp.width();
    const int y = qMin(screen.bottom(), point.y() + popUp.height()) - popUp.height();
    return QPoint(qMax(x, screen.left()), qMax(y, screen.top()));
}

/// The top left corner of the pop-up. `fit` moves a corner into the screen. A pop-up that must not overlap the button
/// takes the first of the mirrored placements that does not, else the preferred one.
template<class Fit>
QPoint FindPosition(const Scene& scene, const Placement& preferred, bool canOverlap, Fit fit)
{
    const auto positionOf = [&](const Placement& placement) {
        return fit(AnchorPoint(scene, placement.first) + DirectionOffset(scene, placement.second));
    };
    const auto overlaps = [&](const QPoint& position) {
        return !scene.button.intersected(QRect(position, scene.popUp)).isEmpty();
    };
    const QPoint first = positionOf(preferred);
    if (canOverlap || !overlaps(first))
        return first;

    // The table may hold chains; a placement that comes again ends the search.
    std::set<Placement> visited;
    Placement current = preferred;
    while (visited.insert(current).second) {
        const auto mirrored = MirroredPlacements().find(current);
        if (mirrored == MirroredPlacements().end())
            break;
        current = mirrored->second;
        const QPoint candidate = positionOf(current);
        if (!overlaps(candidate))
            return candidate;
    }
    return first;
}

} // namespace Zelkor::Vx::UI::PopUpPlacement
