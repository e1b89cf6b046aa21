#pragma once

#include <UI/Common/WaylandPopUp.h>

#include <QRect>

#include <map>
#include <set>
#include <utility>

/// Computes where a pop-up opens, from plain values in global screen coordinates. Internal.
namespace Zelkor::Vx::UI::PopUpPlacement {

/// The point of the button that the pop-up is attached to.
enum class Anchor : int { TopLeft, TopCenter, TopRight, BottomLeft, BottomCenter, BottomRight };

/// The direction in which the pop-up grows from its anchor.
enum class Direction : int { DownRight, DownCenter, DownLeft, UpRight, UpCenter, UpLeft };

using Placement = std::pair<Anchor, Direction>;

struct Geometry
{
    QRect button; ///< in global coordinates
    QSize popUp;
    int hOffset = 0; ///< pixels
    int vOffset = 0; ///< pixels
};

/// Maps each placement that grows away from the button to the one on its opposite side. Nine pairs flip between below
/// and above and keep the horizontal alignment, two flip between right and left. Placements that overlap the button by
/// design have no entry.
inline const std::map<Placement, Placement>& MirroredPlacements()
{
    using A = Anchor;
    using D = Direction;
    static const std::map<Placement, Placement> placements{
        {{A::TopRight, D::DownRight}, {A::TopLeft, D::DownLeft}},
        {{A::BottomLeft, D::DownRight}, {A::TopLeft, D::UpRight}},
        {{A::BottomCenter, D::DownRight}, {A::TopCenter, D::UpRight}},
        {{A::BottomRight, D::DownRight}, {A::TopRight, D::UpRight}},
        {{A::BottomLeft, D::DownCenter}, {A::TopLeft, D::UpCenter}},
        {{A::BottomCenter, D::DownCenter}, {A::TopCenter, D::UpCenter}},
        {{A::BottomRight, D::DownCenter}, {A::TopRight, D::UpCenter}},
        {{A::TopLeft, D::DownLeft}, {A::TopRight, D::DownRight}},
        {{A::BottomLeft, D::DownLeft}, {A::TopLeft, D::UpLeft}},
        {{A::BottomCenter, D::DownLeft}, {A::TopCenter, D::UpLeft}},
        {{A::BottomRight, D::DownLeft}, {A::TopRight, D::UpLeft}},
        {{A::TopLeft, D::UpRight}, {A::BottomLeft, D::DownRight}},
        {{A::TopCenter, D::UpRight}, {A::BottomCenter, D::DownRight}},
        {{A::TopRight, D::UpRight}, {A::BottomRight, D::DownRight}},
        {{A::BottomRight, D::UpRight}, {A::BottomLeft, D::UpLeft}},
        {{A::TopLeft, D::UpCenter}, {A::BottomLeft, D::DownCenter}},
        {{A::TopCenter, D::UpCenter}, {A::BottomCenter, D::DownCenter}},
        {{A::TopRight, D::UpCenter}, {A::BottomRight, D::DownCenter}},
        {{A::TopLeft, D::UpLeft}, {A::BottomLeft, D::DownLeft}},
        {{A::TopCenter, D::UpLeft}, {A::BottomCenter, D::DownLeft}},
        {{A::TopRight, D::UpLeft}, {A::BottomRight, D::DownLeft}},
        {{A::BottomLeft, D::UpLeft}, {A::BottomRight, D::UpRight}},
    };
    return placements;
}

/// Returns the point that the pop-up is attached to. The offsets push it away from the button. Right and bottom anchors
/// are one pixel past the last column and row. Values outside the enumeration count as `BottomLeft`.
inline QPoint AnchorPoint(const Geometry& geometry, Anchor anchor)
{
    // Larger than any screen, and small enough for the sums below not to overflow.
    constexpr int MAXIMUM_OFFSET = 1 << 24;
    const int h = qBound(-MAXIMUM_OFFSET, geometry.hOffset, MAXIMUM_OFFSET);
    const int v = qBound(-MAXIMUM_OFFSET, geometry.vOffset, MAXIMUM_OFFSET);
    const int left = -h;
    const int center = geometry.button.width() / 2;
    const int right = geometry.button.width() + h;
    const int top = -v;
    const int bottom = geometry.button.height() + v;
    switch (anchor) {
    case Anchor::TopLeft:
        return geometry.button.topLeft() + QPoint(left, top);
    case Anchor::TopCenter:
        return geometry.button.topLeft() + QPoint(center, top);
    case Anchor::TopRight:
        return geometry.button.topLeft() + QPoint(right, top);
    case Anchor::BottomCenter:
        return geometry.button.topLeft() + QPoint(center, bottom);
    case Anchor::BottomRight:
        return geometry.button.topLeft() + QPoint(right, bottom);
    case Anchor::BottomLeft:
    default:
        return geometry.button.topLeft() + QPoint(left, bottom);
    }
}

/// Returns the vector from the anchor to the pop-up's top left corner. Values outside the enumeration count as
/// `DownRight`.
inline QPoint DirectionOffset(const Geometry& geometry, Direction direction)
{
    const int width = geometry.popUp.width();
    const int height = geometry.popUp.height();
    switch (direction) {
    case Direction::DownCenter:
        return QPoint(-(width / 2), 0);
    case Direction::DownLeft:
        return QPoint(-width, 0);
    case Direction::UpRight:
        return QPoint(0, -height);
    case Direction::UpCenter:
        return QPoint(-(width / 2), -height);
    case Direction::UpLeft:
        return QPoint(-width, -height);
    case Direction::DownRight:
    default:
        return QPoint(0, 0);
    }
}

/// Returns the top left corner, moved so that the pop-up is on the screen. Leaves one pixel free at the right and
/// bottom edges. A pop-up larger than the screen keeps its left and top edges visible.
inline QPoint FitToScreen(const QRect& screen, const QSize& popUp, const QPoint& point)
{
    const int x = qMin(screen.right(), point.x() + popUp.width()) - popUp.width();
    const int y = qMin(screen.bottom(), point.y() + popUp.height()) - popUp.height();
    return QPoint(qMax(x, screen.left()), qMax(y, screen.top()));
}

/// Returns the top left corner of the pop-up. `fit` moves a corner into the screen. Unless `canOverlap`, a pop-up that
/// would overlap the button takes the first of the mirrored placements that does not, or else the preferred one.
template<class Fit>
QPoint FindPosition(const Geometry& geometry, const Placement& preferred, bool canOverlap, Fit fit)
{
    const auto positionOf = [&](const Placement& placement) {
        return fit(AnchorPoint(geometry, placement.first) + DirectionOffset(geometry, placement.second));
    };
    const auto overlaps = [&](const QPoint& position) {
        return !geometry.button.intersected(QRect(position, geometry.popUp)).isEmpty();
    };
    const QPoint first = positionOf(preferred);
    if (canOverlap || !overlaps(first))
        return first;

    // Mirrors may form a chain; the search ends when a placement repeats.
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

inline Qt::Edges EdgesOf(Anchor anchor)
{
    switch (anchor) {
    case Anchor::TopLeft:
        return Qt::TopEdge | Qt::LeftEdge;
    case Anchor::TopCenter:
        return Qt::TopEdge;
    case Anchor::TopRight:
        return Qt::TopEdge | Qt::RightEdge;
    case Anchor::BottomCenter:
        return Qt::BottomEdge;
    case Anchor::BottomRight:
        return Qt::BottomEdge | Qt::RightEdge;
    case Anchor::BottomLeft:
    default:
        return Qt::BottomEdge | Qt::LeftEdge;
    }
}

inline Qt::Edges EdgesOf(Direction direction)
{
    switch (direction) {
    case Direction::DownCenter:
        return Qt::BottomEdge;
    case Direction::DownLeft:
        return Qt::BottomEdge | Qt::LeftEdge;
    case Direction::UpRight:
        return Qt::TopEdge | Qt::RightEdge;
    case Direction::UpCenter:
        return Qt::TopEdge;
    case Direction::UpLeft:
        return Qt::TopEdge | Qt::LeftEdge;
    case Direction::DownRight:
    default:
        return Qt::BottomEdge | Qt::RightEdge;
    }
}

/// Returns the placement for a Wayland compositor, with the button in coordinates of its window. Unless `canOverlap`, a
/// pop-up without room flips to its mirrored placement and does not slide over the button.
inline Common::PopUpAnchor WaylandAnchor(const Geometry& geometry, const Placement& placement, bool canOverlap)
{
    const QPoint topLeft = AnchorPoint(geometry, Anchor::TopLeft);
    const QPoint end = AnchorPoint(geometry, Anchor::BottomRight);
    uint adjustment = Common::SLIDE_X | Common::SLIDE_Y;
    const auto mirrored = MirroredPlacements().find(placement);
    if (!canOverlap && mirrored != MirroredPlacements().end()) {
        const Qt::Edges changed = EdgesOf(placement.first) ^ EdgesOf(mirrored->second.first);
        adjustment = changed & Qt::TopEdge ? Common::FLIP_Y | Common::SLIDE_X : Common::FLIP_X | Common::SLIDE_Y;
    }
    return {QRect(topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())), EdgesOf(placement.first),
            EdgesOf(placement.second), adjustment};
}

} // namespace Zelkor::Vx::UI::PopUpPlacement
