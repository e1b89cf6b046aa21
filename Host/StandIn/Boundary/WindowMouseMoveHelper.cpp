#include <Zelkor/Vx/UI/Util/WindowMouseMoveHelper.h>

#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace Zelkor::StandIn {

namespace {

// As of the event: the window may have moved since, so its position must not enter.
QPoint GlobalPosition(const QMouseEvent& event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event.globalPosition().toPoint();
#else
    return event.globalPos();
#endif
}

} // namespace

} // namespace Zelkor::StandIn

namespace Zelkor::Vx::UI::Util {

WindowMouseMoveHelper::WindowMouseMoveHelper(QWidget* movedWindow, const QList<QWidget*>& handles)
    : QObject(movedWindow), window(movedWindow)
{
    for (QWidget* handle : handles) {
        if (handle)
            handle->installEventFilter(this);
    }
}

WindowMouseMoveHelper::~WindowMouseMoveHelper() = default;

bool WindowMouseMoveHelper::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        Press(*static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseMove:
        if (Move(*static_cast<QMouseEvent*>(event)))
            return true;
        break;
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        drag = Drag::None;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void WindowMouseMoveHelper::Press(const QMouseEvent& event)
{
    drag = Drag::None;
    if (!window || event.buttons() != Qt::LeftButton)
        return;
    pressPosition = StandIn::GlobalPosition(event);
    windowOrigin = window->pos();
    drag = Drag::Pressed;
}

// Returns true when the event is part of a drag.
bool WindowMouseMoveHelper::Move(const QMouseEvent& event)
{
    // The release was delivered elsewhere, for example to the window system when it ends a system move.
    if (!window || event.buttons() != Qt::LeftButton)
        drag = Drag::None;
    if (drag == Drag::Pressed && StandIn::GlobalPosition(event) != pressPosition)
        drag = StartDrag();
    if (drag == Drag::ByHelper)
        window->move(windowOrigin + StandIn::GlobalPosition(event) - pressPosition);
    return drag == Drag::BySystem || drag == Drag::ByHelper;
}

WindowMouseMoveHelper::Drag WindowMouseMoveHelper::StartDrag()
{
    if (window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen))
        return Drag::None;
    QWindow* handle = window->isWindow() ? window->windowHandle() : nullptr;
    return handle && handle->startSystemMove() ? Drag::BySystem : Drag::ByHelper;
}

} // namespace Zelkor::Vx::UI::Util
