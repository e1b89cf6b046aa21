#include <UI/Common/LostMouseRelease.h>

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

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
    if (!watched->isWindowType())
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (watched == window->windowHandle()) {
            pressed = static_cast<QMouseEvent*>(event)->button();
            // The pointer may come back in another window of the application.
            QCoreApplication::instance()->installEventFilter(this);
        }
        break;
    case QEvent::MouseButtonRelease:
        Forget();
        break;
    case QEvent::MouseMove:
        // A pop-up that opened on the press may have received the release.
        if (pressed != Qt::NoButton && static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton &&
            !QApplication::activePopupWidget())
            Send(QCursor::pos());
        break;
    default:
        break;
    }
    return false;
}

void LostMouseRelease::Forget()
{
    pressed = Qt::NoButton;
    QCoreApplication::instance()->removeEventFilter(this);
}

void LostMouseRelease::Send(const QPoint& global)
{
    const Qt::MouseButton button = pressed;
    Forget();
    QWindow* handle = window->windowHandle();
    if (!handle)
        return;
    QMouseEvent release(QEvent::MouseButtonRelease, handle->mapFromGlobal(global), global, button, Qt::NoButton,
                        QGuiApplication::keyboardModifiers());
    QCoreApplication::sendEvent(handle, &release);
}

} // namespace Zelkor::Vx::UI::Common
