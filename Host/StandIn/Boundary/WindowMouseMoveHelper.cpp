#include <Zelkor/Vx/UI/Util/WindowMouseMoveHelper.h>

#include <QGuiApplication>
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
        if (Move(*static_cast<QWidget*>(watched), *static_cast<QMouseEvent*>(event)))
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
bool WindowMouseMoveHelper::Move(const QWidget& handle, const QMouseEvent& event)
{
    // The release was delivered elsewhere, for example to the window system when it ends a system move.
    if (!window || event.buttons() != Qt::LeftButton)
        drag = Drag::None;
    if (drag == Drag::Pressed && StandIn::GlobalPosition(event) != pressPosition)
        drag = StartDrag(handle);
    if (drag == Drag::ByHelper)
        window->move(windowOrigin + StandIn::GlobalPosition(event) - pressPosition);
    return drag == Drag::BySystem || drag == Drag::ByHelper;
}

WindowMouseMoveHelper::Drag WindowMouseMoveHelper::StartDrag(const QWidget& handle)
{
    if (window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen))
        return Drag::None;
    // On X11, Qt passes on the last position of the pointer in the window itself, which is outdated if a native child
    // has received the press.
    const bool isInNativeChild = handle.internalWinId() || handle.nativeParentWidget() != window;
    const bool isOutdated = isInNativeChild && QGuiApplication::platformName() == QLatin1String("xcb");
    QWindow* system = window->isWindow() && !isOutdated ? window->windowHandle() : nullptr;
    return system && system->startSystemMove() ? Drag::BySystem : Drag::ByHelper;
}

} // namespace Zelkor::Vx::UI::Util
