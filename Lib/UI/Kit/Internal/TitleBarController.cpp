#include <UI/Kit/Internal/TitleBarController.h>

#include <UI/Common/PlainLook.h>
#include <UI/Common/ScreenOf.h>
#include <UI/Kit/Internal/WindowActions.h>

#include <QBoxLayout>
#include <QContextMenuEvent>
#include <QCursor>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>
#include <QStyle>
#include <QToolButton>
#include <QVariant>
#include <QWindow>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace Zelkor::Vx::UI::Kit {

namespace {

// This bar drags its window, unless that is maximised.
const QString DRAGGING_BAR = QStringLiteral("CustomTitleBar");

// "maximized" is a property of QWidget itself.
constexpr char MAXIMIZED[] = "windowMaximized";

// Classes are compared by name, since the bar may use another copy of the kit. A class derived from these may use the
// mouse even if it ignores a press.
bool IsPlain(const QWidget* widget)
{
    const char* const names[] = {"QWidget", "QFrame", "QLabel", "ZFrame", "ZLabel"};
    const char* const name = widget->metaObject()->className();
    return std::any_of(std::begin(names), std::end(names), [=](const char* each) { return !std::strcmp(each, name); });
}

} // namespace

TitleBarController::TitleBarController(QWidget* window, QObject* parent) : QObject(parent), window(window) {}

TitleBarController::~TitleBarController()
{
    removeParts();
}

QWidget* TitleBarController::bar() const
{
    return titleBar;
}

void TitleBarController::removeParts()
{
    if (titleBar)
        titleBar->removeEventFilter(this);
    delete button;
    delete shortcut;
    drag = Drag::None;
}

void TitleBarController::setBar(QWidget* newBar)
{
    if (newBar == titleBar)
        return;
    removeParts();
    titleBar = newBar;
    if (!titleBar)
        return;
    titleBar->installEventFilter(this);
    // A window inside another one leaves the shortcut to that one.
    if (window->isWindow()) {
        shortcut = new QShortcut(QKeySequence(QStringLiteral("Alt+Space")), titleBar);
        connect(shortcut, &QShortcut::activated, this, &TitleBarController::showMenuAtBar);
    }
    addButton();
    update();
}

void TitleBarController::addButton()
{
    auto* closeButton = titleBar->findChild<QWidget*>(QStringLiteral("closeButton"));
    QWidget* holder = closeButton ? closeButton->parentWidget() : nullptr;
    auto* layout = holder ? qobject_cast<QBoxLayout*>(holder->layout()) : nullptr;
    const int index = layout ? layout->indexOf(closeButton) : -1;
    if (index < 0)
        return;
    button = new Common::SymbolButton(Common::Symbol::Maximize, holder);
    button->setObjectName(QStringLiteral("maximizeButton"));
    button->hide();
    layout->insertWidget(index, button);
    // Queued, because the window may delete the button when its state changes.
    connect(
        button, &QToolButton::clicked, window, [window = window] { ToggleMaximized(window); }, Qt::QueuedConnection);
    retranslate();
    sortTabOrder();
}

// Keeps the tab order in visual order; widgets that the application adds change it.
void TitleBarController::sortTabOrder()
{
    auto* closeButton = titleBar->findChild<QWidget*>(QStringLiteral("closeButton"));
    if (button && closeButton && button->nextInFocusChain() != closeButton) {
        QWidget* previous = closeButton->previousInFocusChain();
        QWidget::setTabOrder(previous, button);
        QWidget::setTabOrder(button, closeButton);
    }
}

void TitleBarController::update()
{
    if (!button)
        return;
    const bool isAllowed = CanMaximize(window);
    if (isAllowed == button->isHidden())
        button->setVisible(isAllowed);
    const bool isMaximized = FillsScreen(window);
    if (button->property(MAXIMIZED) != QVariant(isMaximized)) {
        button->setProperty(MAXIMIZED, isMaximized);
        button->SetSymbol(isMaximized ? Common::Symbol::Restore : Common::Symbol::Maximize);
        button->style()->unpolish(button);
        button->style()->polish(button);
        retranslate();
    }
}

void TitleBarController::retranslate()
{
    if (!button)
        return;
    const QString text = FillsScreen(window) ? tr("Restore") : tr("Maximise");
    button->setAccessibleName(text);
    button->setToolTip(text);
}

bool TitleBarController::isFree(const QWidget* part) const
{
    while (part && part != titleBar && IsPlain(part))
        part = part->parentWidget();
    return part && part == titleBar;
}

bool TitleBarController::isMaximizeButton(const QWidget* part) const
{
    return part && part == button;
}

bool TitleBarController::isFreeAt(const QPoint& point) const
{
    const QWidget* part = titleBar->childAt(point);
    return part ? isFree(part) : titleBar->rect().contains(point);
}

bool TitleBarController::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != titleBar)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(*static_cast<QMouseEvent*>(event));
        return false;
    case QEvent::MouseMove:
        return move(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
        drag = Drag::None;
        return false;
    case QEvent::MouseButtonDblClick: {
        const auto& click = *static_cast<QMouseEvent*>(event);
        drag = Drag::None;
        if (click.button() != Qt::LeftButton || !isFreeAt(click.pos()) || !CanMaximize(window))
            return false;
        ToggleMaximized(window);
        return true;
    }
    case QEvent::ContextMenu:
        return showContextMenu(*static_cast<QContextMenuEvent*>(event));
    case QEvent::LayoutRequest:
        sortTabOrder();
        return false;
    default:
        return false;
    }
}

void TitleBarController::press(const QMouseEvent& event)
{
    drag = Drag::None;
    if (event.buttons() != Qt::LeftButton || !isFreeAt(event.pos()))
        return;
    pressPosition = titleBar->mapToGlobal(event.pos());
    windowOrigin = window->pos();
    drag = Drag::Pressed;
}

// Returns true when the event is part of a drag.
bool TitleBarController::move(const QMouseEvent& event)
{
    if (event.buttons() != Qt::LeftButton)
        drag = Drag::None;
    if (drag == Drag::Pressed && titleBar->mapToGlobal(event.pos()) != pressPosition)
        return startMove();
    if (drag == Drag::ByController)
        window->move(windowOrigin + QCursor::pos() - pressPosition);
    return drag == Drag::ByController;
}

bool TitleBarController::startMove()
{
    drag = Drag::None;
    const Qt::WindowStates state = window->windowState();
    const bool isMaximized = state & Qt::WindowMaximized;
    if (state & Qt::WindowFullScreen || (titleBar->objectName() == DRAGGING_BAR && !isMaximized))
        return false;
    QWindow* system = SystemWindow(window, titleBar);
    if (system && system->startSystemMove())
        return true;
    drag = isMaximized ? Drag::None : Drag::ByController;
    return drag == Drag::ByController;
}

bool TitleBarController::showContextMenu(const QContextMenuEvent& event)
{
    if (titleBar->contextMenuPolicy() != Qt::DefaultContextMenu)
        return false;
    if (event.reason() == QContextMenuEvent::Keyboard) {
        showMenuAtBar();
        return true;
    }
    if (!isFreeAt(titleBar->mapFromGlobal(event.globalPos())))
        return false;
    showMenu(event.globalPos());
    return true;
}

void TitleBarController::showMenuAtBar()
{
    if (!titleBar)
        return;
    const int x = titleBar->isRightToLeft() ? titleBar->width() : 0;
    QPoint point = titleBar->mapToGlobal(QPoint(x, titleBar->height()));
    // The corner may be off all screens; Qt then takes the primary one.
    if (const QScreen* screen = Common::IsWayland() ? nullptr : Common::ScreenOf(*titleBar)) {
        const QRect room = screen->geometry();
        point.setX(qBound(room.left(), point.x(), room.right()));
        point.setY(qBound(room.top(), point.y(), room.bottom()));
    }
    showMenu(point);
}

void TitleBarController::showMenu(const QPoint& global)
{
    auto* menu = new QMenu(window);
    menu->setObjectName(QStringLiteral("windowMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setLayoutDirection(window->layoutDirection());
    // Queued, because a slot may delete the window and the menu with it.
    const auto add = [&](const QString& text, bool isEnabled, auto action) {
        QAction* entry = menu->addAction(text);
        entry->setEnabled(isEnabled);
        connect(entry, &QAction::triggered, window, action, Qt::QueuedConnection);
    };
    const Qt::WindowFlags flags = window->windowFlags();
    const bool fillsScreen = FillsScreen(window);
    add(tr("Restore"), fillsScreen, &QWidget::showNormal);
    add(tr("Minimise"), flags & Qt::WindowMinimizeButtonHint, &QWidget::showMinimized);
    add(tr("Maximise"), CanMaximize(window) && !fillsScreen, &QWidget::showMaximized);
    menu->addSeparator();
    add(tr("Close"), flags & Qt::WindowCloseButtonHint, &QWidget::close);
    const int width = window->isRightToLeft() ? menu->sizeHint().width() : 0;
    menu->popup(global - QPoint(width, 0));
}

} // namespace Zelkor::Vx::UI::Kit
