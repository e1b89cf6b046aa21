#include <UI/Common/LostMouseRelease.h>

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace Zelkor::Vx::UI::Common {

void LostMouseRelease::Watch(QWidget* window)
{
    if (!window->findChild<LostMouseRelease*>(QString(), Qt::FindDirectChildrenOnly))
        new LostMouseRelease(window);
}

LostMouseRelease::LostMouseRelease(QWidget* window) : QObject(window), window(window)
{
    window->installEventFilter(this);
    if (QWindow* handle = window->windowHandle())
        handle->installEventFilter(this);
}

bool LostMouseRelease::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == window) {
        // A window that has not been shown yet has no handle.
        QWindow* handle = event->type() == QEvent::WinIdChange ? window->windowHandle() : nullptr;
        if (handle)
            handle->installEventFilter(this);
        return false;
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        pressed = static_cast<QMouseEvent*>(event)->button();
        break;
    case QEvent::MouseButtonRelease:
        pressed = Qt::NoButton;
        break;
    case QEvent::MouseMove:
        // A pop-up that opened on the press may have received the release.
        if (pressed != Qt::NoButton && static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton &&
            !QApplication::activePopupWidget())
            Send(static_cast<QWindow*>(watched), *static_cast<QMouseEvent*>(event));
        break;
    default:
        break;
    }
    return false;
}

void LostMouseRelease::Send(QWindow* handle, const QMouseEvent& move)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QPointF local = move.position();
    const QPointF global = move.globalPosition();
#else
    const QPointF local = move.localPos();
    const QPointF global = move.screenPos();
#endif
    QMouseEvent release(QEvent::MouseButtonRelease, local, global, std::exchange(pressed, Qt::NoButton), Qt::NoButton,
                        move.modifiers());
    QCoreApplication::sendEvent(handle, &release);
}

} // namespace Zelkor::Vx::UI::Common
