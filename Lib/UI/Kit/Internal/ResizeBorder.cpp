#include <UI/Kit/Internal/ResizeBorder.h>

#include <UI/Kit/Internal/WindowActions.h>

#include <QCursor>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QWindow>

namespace Zelkor::Vx::UI::Kit {

namespace {

constexpr int CORNER_FACTOR = 3; ///< a corner extends along its edges by this many times the width of the border
constexpr int LARGEST_PART = 4;  ///< the border takes at most this part of a small window

WindowPart PartOf(Qt::Edges edges)
{
    const bool isTop = edges & Qt::TopEdge;
    const bool isBottom = edges & Qt::BottomEdge;
    if (edges & Qt::LeftEdge)
        return isTop ? WindowPart::TopLeft : isBottom ? WindowPart::BottomLeft : WindowPart::Left;
    if (edges & Qt::RightEdge)
        return isTop ? WindowPart::TopRight : isBottom ? WindowPart::BottomRight : WindowPart::Right;
    return isTop ? WindowPart::Top : isBottom ? WindowPart::Bottom : WindowPart::Client;
}

Qt::CursorShape ShapeOf(WindowPart part)
{
    switch (part) {
    case WindowPart::Left:
    case WindowPart::Right:
        return Qt::SizeHorCursor;
    case WindowPart::Top:
    case WindowPart::Bottom:
        return Qt::SizeVerCursor;
    case WindowPart::TopLeft:
    case WindowPart::BottomRight:
        return Qt::SizeFDiagCursor;
    case WindowPart::TopRight:
    case WindowPart::BottomLeft:
        return Qt::SizeBDiagCursor;
    default:
        return Qt::ArrowCursor;
    }
}

// Moves the dragged edges and keeps the opposite ones, also at the limits of the size.
QRect Dragged(const QRect& geometry, Qt::Edges edges, const QPoint& way, const QSize& smallest, const QSize& largest)
{
    const int x = edges & Qt::RightEdge ? way.x() : edges & Qt::LeftEdge ? -way.x() : 0;
    const int y = edges & Qt::BottomEdge ? way.y() : edges & Qt::TopEdge ? -way.y() : 0;
    QRect dragged = geometry;
    dragged.setSize((geometry.size() + QSize(x, y)).expandedTo(smallest).boundedTo(largest));
    if (edges & Qt::LeftEdge)
        dragged.moveRight(geometry.right());
    if (edges & Qt::TopEdge)
        dragged.moveBottom(geometry.bottom());
    return dragged;
}

} // namespace

ResizeBorder::ResizeBorder(QWidget* window) : QWidget(window), window(window)
{
    setObjectName(QStringLiteral("resizeBorder"));
    setAttribute(Qt::WA_NoSystemBackground);
    setMouseTracking(true);
    fit();
}

void ResizeBorder::setThickness(int pixels)
{
    width = pixels;
    fit();
}

bool ResizeBorder::isNeeded() const
{
    return window->windowFlags().testFlag(Qt::FramelessWindowHint) && !FillsScreen(window);
}

int ResizeBorder::effectiveWidth() const
{
    return qMin(width, qMin(window->width(), window->height()) / LARGEST_PART);
}

void ResizeBorder::fit()
{
    const QRegion sensitive = sensitiveRegion();
    const QRegion ring = outline() + sensitive;
    setAttribute(Qt::WA_TransparentForMouseEvents, sensitive.isEmpty());
    setGeometry(window->rect());
    // An empty mask would be none.
    if (!ring.isEmpty())
        setMask(ring);
    const bool isShown = isNeeded() && !ring.isEmpty();
    if (isShown == isHidden())
        setVisible(isShown);
}

QRegion ResizeBorder::outline() const
{
    return QRegion(window->rect()) - window->rect().adjusted(1, 1, -1, -1);
}

QRegion ResizeBorder::sensitiveRegion() const
{
    const int edge = effectiveWidth();
    const Qt::Orientations directions = ResizableDirections(window);
    const int x = directions & Qt::Horizontal ? edge : 0;
    const int y = directions & Qt::Vertical ? edge : 0;
    return QRegion(window->rect()) - window->rect().adjusted(x, y, -x, -y);
}

Qt::Edges ResizeBorder::edgesAt(const QPoint& point) const
{
    if (!isNeeded() || !sensitiveRegion().contains(point))
        return {};
    const int edge = effectiveWidth();
    const Qt::Orientations directions = ResizableDirections(window);
    const QRect inner = window->rect().adjusted(edge, edge, -edge, -edge);
    // A corner begins earlier on the other edge.
    const bool isBeside = point.x() < inner.left() || point.x() > inner.right();
    const bool isAboveOrBelow = point.y() < inner.top() || point.y() > inner.bottom();
    const int cornerX = isAboveOrBelow && directions & Qt::Vertical ? edge * CORNER_FACTOR : edge;
    const int cornerY = isBeside && directions & Qt::Horizontal ? edge * CORNER_FACTOR : edge;
    const QPoint end = window->rect().bottomRight() - point;
    Qt::Edges edges;
    if (directions & Qt::Horizontal) {
        edges.setFlag(Qt::LeftEdge, point.x() < cornerX && point.x() <= end.x());
        edges.setFlag(Qt::RightEdge, end.x() < cornerX && end.x() < point.x());
    }
    if (directions & Qt::Vertical) {
        edges.setFlag(Qt::TopEdge, point.y() < cornerY && point.y() <= end.y());
        edges.setFlag(Qt::BottomEdge, end.y() < cornerY && end.y() < point.y());
    }
    return edges;
}

WindowPart ResizeBorder::partAt(const QPoint& point) const
{
    return PartOf(edgesAt(point));
}

void ResizeBorder::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // A background that a style sheet gives to all widgets must not cover the content.
    painter.setClipRegion(outline());
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

bool ResizeBorder::event(QEvent* event)
{
    // No mouse move need follow.
    if (event->type() == QEvent::Enter)
        setCursor(ShapeOf(partAt(mapFromGlobal(QCursor::pos()))));
    return QWidget::event(event);
}

void ResizeBorder::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    dragged = {};
    const Qt::Edges edges = event->buttons() == Qt::LeftButton ? edgesAt(event->pos()) : Qt::Edges();
    if (!edges)
        return;
    QWindow* system = SystemWindow(window, this);
    if (system && system->startSystemResize(edges))
        return;
    dragged = edges;
    pressPosition = mapToGlobal(event->pos());
    pressGeometry = window->geometry();
}

void ResizeBorder::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() != Qt::LeftButton)
        dragged = {};
    if (event->buttons() == Qt::NoButton)
        setCursor(ShapeOf(partAt(event->pos())));
    if (!dragged)
        return;
    // Positions of the event refer to the window as it was then; a drag of the left or upper edge moves it.
    const QPoint way = QCursor::pos() - pressPosition;
    const QSize content = window->layout() ? window->layout()->totalMinimumSize() : QSize(0, 0);
    const QSize smallest = window->minimumSize().expandedTo(content).expandedTo(QSize(1, 1));
    window->setGeometry(Dragged(pressGeometry, dragged, way, smallest, window->maximumSize()));
}

void ResizeBorder::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    dragged = {};
}

} // namespace Zelkor::Vx::UI::Kit
