#include "ResizeFrame.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace Zelkor::Gallery {

namespace {

constexpr int MARGIN = 7; ///< of the frame around the widget
constexpr int HANDLE_SIDE = 7;
constexpr int STEP = 1;
constexpr int LARGE_STEP = 10;
constexpr Qt::Orientations BOTH = Qt::Horizontal | Qt::Vertical;

} // namespace

QSize SizedItem::Smallest() const
{
    const QSize hint = wid->minimumSizeHint().expandedTo(QSize(0, 0));
    const QSize limit = QWidgetItem::minimumSize();
    return QSize(freed & Qt::Horizontal ? hint.width() : limit.width(),
                 freed & Qt::Vertical ? hint.height() : limit.height());
}

QSize SizedItem::Largest() const
{
    return QSize(freed & Qt::Horizontal ? QWIDGETSIZE_MAX : wid->maximumWidth(),
                 freed & Qt::Vertical ? QWIDGETSIZE_MAX : wid->maximumHeight());
}

void SizedItem::SetSize(const QSize& newSize)
{
    if (!size.isValid()) {
        minimumBefore = wid->minimumSize();
        maximumBefore = wid->maximumSize();
    }
    size = newSize.isValid() ? newSize.expandedTo(Smallest()).boundedTo(Largest()) : QSize();
    if (freed & Qt::Horizontal) {
        wid->setMinimumWidth(size.isValid() ? 0 : minimumBefore.width());
        wid->setMaximumWidth(size.isValid() ? QWIDGETSIZE_MAX : maximumBefore.width());
    }
    if (freed & Qt::Vertical) {
        wid->setMinimumHeight(size.isValid() ? 0 : minimumBefore.height());
        wid->setMaximumHeight(size.isValid() ? QWIDGETSIZE_MAX : maximumBefore.height());
    }
    wid->updateGeometry();
}

ResizeFrame::ResizeFrame(SizedItem* item, QWidget* parent) : QWidget(parent), item(item)
{
    setObjectName("resizeFrame");
    setAccessibleName(tr("Size"));
    setAccessibleDescription(tr("Arrow keys resize the widget, Backspace restores its size"));
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    for (QWidget* part = item->widget(); part != parent; part = part->parentWidget())
        part->installEventFilter(this);
    connect(item->widget(), &QObject::destroyed, this, [this] { delete this; });
    Follow();
}

// Covers a ring around the widget, without the widget, which receives its mouse events as before.
void ResizeFrame::Follow()
{
    const QWidget* widget = item->widget();
    const QRect area(widget->mapTo(parentWidget(), QPoint()), widget->size());
    setGeometry(area.marginsAdded({MARGIN, MARGIN, MARGIN, MARGIN}));
    setMask(QRegion(rect()) - QRect(QPoint(MARGIN, MARGIN), area.size()));
    const QSize smallest = item->Smallest();
    const QSize largest = item->Largest();
    resizable.setFlag(Qt::Horizontal, smallest.width() < largest.width());
    resizable.setFlag(Qt::Vertical, smallest.height() < largest.height());
    raise();
    update();
}

QRect ResizeFrame::Handle(Qt::Orientations directions) const
{
    const QRect line = rect().adjusted(HANDLE_SIDE / 2, HANDLE_SIDE / 2, -HANDLE_SIDE / 2 - 1, -HANDLE_SIDE / 2 - 1);
    QPoint centre = line.center();
    if (directions & Qt::Horizontal)
        centre.setX(isRightToLeft() ? line.left() : line.right() + 1);
    if (directions & Qt::Vertical)
        centre.setY(line.bottom() + 1);
    return QRect(centre - QPoint(HANDLE_SIDE / 2, HANDLE_SIDE / 2), QSize(HANDLE_SIDE, HANDLE_SIDE));
}

Qt::Orientations ResizeFrame::HandleAt(const QPoint& place) const
{
    for (const Qt::Orientations directions : {BOTH, Qt::Orientations(Qt::Horizontal), Qt::Orientations(Qt::Vertical)}) {
        if ((resizable & directions) == directions && Handle(directions).contains(place))
            return directions;
    }
    return {};
}

void ResizeFrame::Resize(const QSize& size)
{
    item->SetSize(size);
    const QSize now = item->sizeHint();
    const QPoint place = mapToGlobal(Handle(BOTH).bottomRight());
    QToolTip::showText(place, QString::fromUtf8("%1 × %2").arg(now.width()).arg(now.height()), this);
}

bool ResizeFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        Follow();
    return QWidget::eventFilter(watched, event);
}

void ResizeFrame::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    update();
}

void ResizeFrame::keyPressEvent(QKeyEvent* event)
{
    const int step = event->modifiers() & Qt::ShiftModifier ? LARGE_STEP : STEP;
    const int outwards = isRightToLeft() ? -step : step;
    const QSize size = item->widget()->size();
    switch (event->key()) {
    case Qt::Key_Right:
        return Resize(size + QSize(outwards, 0));
    case Qt::Key_Left:
        return Resize(size - QSize(outwards, 0));
    case Qt::Key_Down:
        return Resize(size + QSize(0, step));
    case Qt::Key_Up:
        return Resize(size - QSize(0, step));
    case Qt::Key_Backspace:
        return Resize(QSize());
    default:
        QWidget::keyPressEvent(event);
    }
}

void ResizeFrame::mousePressEvent(QMouseEvent* event)
{
    dragged = event->button() == Qt::LeftButton ? HandleAt(event->pos()) : Qt::Orientations();
    pressedAt = mapToGlobal(event->pos());
    sizeBefore = item->widget()->size();
    if (!dragged)
        event->ignore();
}

void ResizeFrame::mouseMoveEvent(QMouseEvent* event)
{
    if (!dragged) {
        const Qt::Orientations handle = HandleAt(event->pos());
        const Qt::CursorShape diagonal = isRightToLeft() ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor;
        setCursor(handle == BOTH             ? diagonal
                  : handle == Qt::Horizontal ? Qt::SizeHorCursor
                  : handle == Qt::Vertical   ? Qt::SizeVerCursor
                                             : Qt::ArrowCursor);
        return;
    }
    const QPoint way = mapToGlobal(event->pos()) - pressedAt;
    const int wider = isRightToLeft() ? -way.x() : way.x();
    const QSize size = sizeBefore + QSize(dragged & Qt::Horizontal ? wider : 0, dragged & Qt::Vertical ? way.y() : 0);
    Resize(size.expandedTo(QSize(0, 0)));
}

void ResizeFrame::mouseReleaseEvent(QMouseEvent*)
{
    dragged = {};
}

void ResizeFrame::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (HandleAt(event->pos()))
        Resize(QSize());
}

void ResizeFrame::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor color = palette().color(QPalette::Highlight);
    painter.setPen(QPen(color, 1, hasFocus() ? Qt::SolidLine : Qt::DotLine));
    const int inset = HANDLE_SIDE / 2;
    painter.drawRect(rect().adjusted(inset, inset, -inset - 1, -inset - 1));
    for (const Qt::Orientations directions : {BOTH, Qt::Orientations(Qt::Horizontal), Qt::Orientations(Qt::Vertical)}) {
        if ((resizable & directions) == directions)
            painter.fillRect(Handle(directions), color);
    }
}

} // namespace Zelkor::Gallery
