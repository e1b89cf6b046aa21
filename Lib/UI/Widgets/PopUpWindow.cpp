#include <UI/Widgets/PopUpWindow.h>

#include <UI/Common/BoxLayouts.h>
#include <UI/Common/LogSource.h>
#include <UI/Common/ScreenOf.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalBlocker>

namespace Zelkor::Vx::UI {

namespace {

const Common::LogSource LOG_SOURCE("Lib/UI/Widgets/ButtonWithPopUpContainer");

// Uses the whole screen, since a pop-up may cover task bars.
QPoint GetBestPopupPosition(const QWidget* popup, const QWidget* button, const QPoint& point)
{
    if (Common::IsWayland())
        return PopUpPlacement::FitToScreen(Common::WaylandRoom(*button), popup->size(), point);
    const QScreen* screen = Common::ScreenOf(*button);
    if (!screen || !screen->geometry().isValid()) {
        LOG_SOURCE.Warning(45, "Zelkor::Vx::UI::`anonymous-namespace'::GetBestPopupPosition",
                           "availableGeometry is not valid");
        return point;
    }
    return PopUpPlacement::FitToScreen(screen->geometry(), popup->size(), point);
}

// Returns the widget or the first of its children, in tab order, that accepts keyboard focus.
QWidget* FirstFocusable(QWidget* widget)
{
    QWidget* part = widget;
    do {
        const bool takesKeyboard = part->focusPolicy() & Qt::TabFocus;
        if (takesKeyboard && part->isEnabled() && (part == widget || widget->isAncestorOf(part)) && part->isVisible())
            return part;
        part = part->nextInFocusChain();
    } while (part != widget);
    return nullptr;
}

} // namespace

PopUpWindow::PopUpWindow(QAbstractButton* button)
    : ZFrame(button), container(new ZFrame(this)), containerLayout(Common::MakeBoxLayout<QVBoxLayout>(container)),
      button(button)
{
    setObjectName(QStringLiteral("popUpWindow"));
    container->setObjectName(QStringLiteral("popUpContainer"));
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    Common::MakeBoxLayout<QVBoxLayout>(this)->addWidget(container);
    setAttribute(Qt::WA_TranslucentBackground, true);
    container->setAutoFillBackground(true);
}

// Toggles the button here and not in the event handlers: a slot may delete the button, and with it the window, which
// Qt does not survive while it shows or hides the window.
void PopUpWindow::setVisible(bool visible)
{
    const bool wasVisible = isVisible();
    if (visible && !wasVisible)
        shown = settings;
    ZFrame::setVisible(visible);
    if (!button || isVisible() == wasVisible)
        return;
    WatchButton(!wasVisible);
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(button, changed);
    QAccessible::updateAccessibility(&event);
    SetButtonChecked(!wasVisible);
}

void PopUpWindow::Open()
{
    const bool isByMouse = isMouseReleased;
    if (!isVisible() && focusWidget())
        focusWidget()->clearFocus();
    const QPointer<PopUpWindow> self(this);
    show();
    if (self && !isByMouse)
        FocusFirstWidget();
}

void PopUpWindow::FocusFirstWidget()
{
    for (int i = 0; i < containerLayout->count() && !focusWidget(); ++i) {
        QWidget* widget = containerLayout->itemAt(i)->widget();
        if (QWidget* first = widget ? FirstFocusable(widget) : nullptr)
            first->setFocus(Qt::TabFocusReason);
    }
}

void PopUpWindow::LeaveButton()
{
    button = nullptr;
    if (eventDepth == 0)
        return;
    setParent(nullptr, windowFlags());
    deleteLater();
}

// Emits the signal last: Qt still uses a button after its signal, and a slot may have deleted the button.
void PopUpWindow::SetButtonChecked(bool isChecked)
{
    if (button->isChecked() == isChecked)
        return;
    {
        const QSignalBlocker blocker(button);
        button->setChecked(isChecked);
    }
    Q_EMIT button->toggled(isChecked);
}

bool PopUpWindow::IsButtonInUse() const
{
    return button->isVisible() && button->isEnabled();
}

QRect PopUpWindow::ButtonRect() const
{
    return QRect(button->mapToGlobal(QPoint(0, 0)), button->size());
}

// The button moves with each of its parents up to its window.
void PopUpWindow::WatchButton(bool isWatched)
{
    for (QWidget* widget = button; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        if (isWatched)
            widget->installEventFilter(this);
        else
            widget->removeEventFilter(this);
    }
}

bool PopUpWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (!button || !isVisible())
        return ZFrame::eventFilter(watched, event);
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        FollowButton();
    if (event->type() == QEvent::LayoutDirectionChange && watched == button)
        setLayoutDirection(button->layoutDirection());
    // A parent receives its hide event before Qt iterates over its children, which a slot that deletes the button would
    // disturb.
    if (event->type() != QEvent::Hide || watched == button)
        return ZFrame::eventFilter(watched, event);
    const QPointer<QObject> receiver(watched);
    ++eventDepth;
    hide();
    --eventDepth;
    return !receiver;
}

bool PopUpWindow::event(QEvent* event)
{
    if (event->type() == QEvent::DeferredDelete)
        return ZFrame::event(event); // deletes the window
    ++eventDepth;
    const bool isHandled = ZFrame::event(event);
    // A disabled button disables its panel.
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        hide();
    if (event->type() == QEvent::LayoutRequest && button && isVisible()) {
        adjustSize();
        FollowButton();
    }
    --eventDepth;
    return isHandled;
}

QPoint PopUpWindow::ComputePopupPosition() const
{
    const PopUpPlacement::Geometry geometry{ButtonRect(), size(), shown.hOffset, shown.vOffset};
    return PopUpPlacement::FindPosition(
        geometry, {shown.anchor, shown.direction}, shown.canOverlapButton,
        [this](const QPoint& point) { return GetBestPopupPosition(this, button, point); });
}

void PopUpWindow::Place()
{
    if (Common::IsWayland()) {
        const QRect rect(button->mapTo(button->window(), QPoint(0, 0)), button->size());
        Common::SetPopUpAnchor(*this,
                               PopUpPlacement::WaylandAnchor({rect, size(), shown.hOffset, shown.vOffset},
                                                             {shown.anchor, shown.direction}, shown.canOverlapButton));
    }
    requested = QRect(ComputePopupPosition(), size());
    move(requested.topLeft());
}

void PopUpWindow::FollowButton()
{
    if (!Common::IsWayland()) {
        Place();
    } else if (requested != QRect(ComputePopupPosition(), size())) {
        // A pop-up on Wayland does not move, so map it again.
        const QPointer<QWidget> focused(focusWidget());
        ZFrame::setVisible(false);
        ZFrame::setVisible(true);
        if (focused)
            focused->setFocus(Qt::PopupFocusReason);
    }
}

void PopUpWindow::showEvent(QShowEvent* event)
{
    // A window does not inherit its parent's layout direction.
    setLayoutDirection(button->layoutDirection());
    // The button may be in another window than when this one was created.
    QWindow* parent = button->window()->windowHandle();
    if (parent && windowHandle())
        windowHandle()->setTransientParent(parent);
    adjustSize();
    ZFrame::showEvent(event);
    Place();
    // The pop-up grabs the mouse, so the button gets no leave event.
    button->setAttribute(Qt::WA_UnderMouse, false);
}

void PopUpWindow::mousePressEvent(QMouseEvent* event)
{
    // A press outside closes the pop-up and is then replayed to the widget below. The button would open it again.
    setAttribute(Qt::WA_NoMouseReplay, button && ButtonRect().contains(mapToGlobal(event->pos())));
    ZFrame::mousePressEvent(event);
}

} // namespace Zelkor::Vx::UI
