#include <UI/Kit/Internal/WindowActions.h>

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace Zelkor::Vx::UI::Kit {

Qt::Orientations ResizableDirections(const QWidget* window)
{
    Qt::Orientations directions;
    directions.setFlag(Qt::Horizontal, window->minimumWidth() < window->maximumWidth());
    directions.setFlag(Qt::Vertical, window->minimumHeight() < window->maximumHeight());
    return directions;
}

bool FillsScreen(const QWidget* window)
{
    return window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen);
}

bool CanMaximize(const QWidget* window)
{
    return window->windowFlags().testFlag(Qt::WindowMaximizeButtonHint) &&
           ResizableDirections(window) == (Qt::Horizontal | Qt::Vertical);
}

void ToggleMaximized(QWidget* window)
{
    if (FillsScreen(window))
        window->showNormal();
    else
        window->showMaximized();
}

QWindow* SystemWindow(const QWidget* window, const QWidget* pressed)
{
    const bool isInNativeChild = pressed->internalWinId() || pressed->nativeParentWidget() != window;
    const bool isOutdated = isInNativeChild && QGuiApplication::platformName() == QLatin1String("xcb");
    return window->isWindow() && !isOutdated ? window->windowHandle() : nullptr;
}

} // namespace Zelkor::Vx::UI::Kit
