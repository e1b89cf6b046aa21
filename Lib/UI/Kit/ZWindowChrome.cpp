#include <UI/Kit/ZWindowChrome.h>

#include <UI/Common/LostMouseRelease.h>
#include <UI/Kit/Internal/ResizeBorder.h>
#include <UI/Kit/Internal/TitleBarController.h>
#include <UI/Kit/Internal/WindowActions.h>

#ifdef Q_OS_WIN
#include <UI/Kit/Internal/WindowsFrame.h>
#endif

#include <QChildEvent>
#include <QPointer>
#include <QWidget>

#include <optional>
#include <utility>

using Zelkor::Vx::UI::Kit::FillsScreen;
using Zelkor::Vx::UI::Kit::ResizeBorder;
using Zelkor::Vx::UI::Kit::TitleBarController;
using Zelkor::Vx::UI::Kit::WindowPart;

struct ZWindowChrome::Impl
{
    Impl(QWidget* window, QObject* chrome)
        : window(window), border(new ResizeBorder(window)), controller(new TitleBarController(window, chrome))
    {}

    WindowPart partAt(const QPoint& point) const;
    void fillParent();

    QWidget* const window;
    const QPointer<ResizeBorder> border;
    TitleBarController* const controller; ///< owned by the chrome
    std::optional<QRect> normalGeometry;  ///< while a widget inside another window is maximised
#ifdef Q_OS_WIN
    const QPointer<QObject> frame =
        new Zelkor::Vx::UI::Kit::WindowsFrame(window, [this](const QPoint& point) { return partAt(point); });
#endif
};

// Returns the part at a point of the window.
WindowPart ZWindowChrome::Impl::partAt(const QPoint& point) const
{
    const WindowPart edge = border ? border->partAt(point) : WindowPart::Client;
    if (edge != WindowPart::Client)
        return edge;
    const QWidget* part = window->childAt(point);
    if (controller->isMaximizeButton(part))
        return WindowPart::MaximizeButton;
    return controller->isFree(part) ? WindowPart::Caption : WindowPart::Client;
}

// Qt changes the state of a widget inside another window, but not its geometry.
void ZWindowChrome::Impl::fillParent()
{
    const bool fills = FillsScreen(window);
    if (window->isWindow() || fills == normalGeometry.has_value())
        return;
    if (!fills) {
        window->setGeometry(*std::exchange(normalGeometry, std::nullopt));
        return;
    }
    normalGeometry = window->geometry();
    const Qt::WindowStates state = window->windowState();
    window->setGeometry(window->parentWidget()->contentsRect());
    window->overrideWindowState(state); // which the new geometry has reset
}

ZWindowChrome::ZWindowChrome(QWidget* window) : QObject(window)
{
    if (!window) {
        qWarning("ZWindowChrome: no window");
        return;
    }
    // By name, because another copy of the kit may have created it.
    if (window->findChild<QWidget*>(QStringLiteral("resizeBorder"), Qt::FindDirectChildrenOnly)) {
        qWarning("ZWindowChrome: the window has one already");
        return;
    }
    impl = std::make_unique<Impl>(window, this);
    for (QObject* child : window->children()) {
        if (child->isWidgetType() && child != impl->border)
            child->installEventFilter(this);
    }
    window->installEventFilter(this);
    Zelkor::Vx::UI::Common::LostMouseRelease::Watch(window);
}

ZWindowChrome::~ZWindowChrome()
{
    if (!impl)
        return;
    // Deleting the border under the pointer sends an enter event to the window.
    impl->window->removeEventFilter(this);
#ifdef Q_OS_WIN
    delete impl->frame;
#endif
    delete impl->border;
}

int ZWindowChrome::resizeBorder() const
{
    return impl && impl->border ? impl->border->thickness() : 0;
}

void ZWindowChrome::setResizeBorder(int pixels)
{
    if (impl && impl->border)
        impl->border->setThickness(qMax(0, pixels));
}

QWidget* ZWindowChrome::titleBar() const
{
    return impl ? impl->controller->bar() : nullptr;
}

void ZWindowChrome::setTitleBar(QWidget* bar)
{
    if (impl && bar != impl->window)
        impl->controller->setBar(bar);
}

bool ZWindowChrome::eventFilter(QObject* watched, QEvent* event)
{
    if (!impl->border)
        return false;
    if (watched != impl->window) {
        if (event->type() == QEvent::ZOrderChange)
            impl->border->raise();
        return false;
    }
    switch (event->type()) {
    case QEvent::ChildAdded: {
        QObject* child = static_cast<QChildEvent*>(event)->child();
        if (child->isWidgetType() && child != impl->border) {
            child->installEventFilter(this);
            impl->border->raise();
        }
        break;
    }
    case QEvent::ChildRemoved:
        static_cast<QChildEvent*>(event)->child()->removeEventFilter(this);
        break;
    case QEvent::LanguageChange:
        impl->controller->retranslate();
        break;
    case QEvent::WindowStateChange:
        impl->fillParent();
        followWindow();
        break;
    // The size limits of a widget change without an event.
    case QEvent::Enter:
    case QEvent::WindowActivate:
    case QEvent::ParentChange:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::LayoutRequest:
        followWindow();
        break;
    default:
        break;
    }
    return false;
}

void ZWindowChrome::followWindow()
{
    if (!impl->border)
        return;
    impl->border->fit();
    impl->controller->update();
}
