#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/BoxLayouts.h>
#include <UI/Common/CanBeParentOf.h>
#include <UI/Common/LogSource.h>
#include <UI/Common/MirroredStyle.h>
#include <UI/Common/PopUpKeys.h>
#include <UI/Common/TextMarks.h>
#include <UI/Kit/ZFrame.h>
#include <UI/Widgets/PopUpPlacement.h>

#include <QApplication>
#include <QDesktopWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalBlocker>

namespace Zelkor::Vx::UI {

namespace {

const Common::LogSource LOG_SOURCE("Lib/UI/Widgets/ButtonWithPopUpContainer");

// The enumerators have the values of QBoxLayout::Direction, one to one.
static_assert(int(ButtonWithPopUpContainer::LAYOUT_LEFT_TO_RIGHT) == QBoxLayout::LeftToRight);
static_assert(int(ButtonWithPopUpContainer::LAYOUT_RIGHT_TO_LEFT) == QBoxLayout::RightToLeft);
static_assert(int(ButtonWithPopUpContainer::LAYOUT_TOP_TO_BOTTOM) == QBoxLayout::TopToBottom);
static_assert(int(ButtonWithPopUpContainer::LAYOUT_BOTTOM_TO_TOP) == QBoxLayout::BottomToTop);

bool IsKnown(ButtonWithPopUpContainer::LayoutDirection direction)
{
    return direction >= ButtonWithPopUpContainer::LAYOUT_LEFT_TO_RIGHT &&
           direction <= ButtonWithPopUpContainer::LAYOUT_BOTTOM_TO_TOP;
}

// The whole screen counts, task bars included: a pop-up may lie over them.
QPoint GetBestPopupPosition(const QWidget* popup, const QWidget* button, const QPoint& point)
{
    const QRect screen = QApplication::desktop()->screenGeometry(button);
    if (!screen.isValid()) {
        LOG_SOURCE.Warning(45, "Zelkor::Vx::UI::`anonymous-namespace'::GetBestPopupPosition",
                           "availableGeometry is not valid");
        return point;
    }
    return PopUpPlacement::FitToScreen(screen, popup->size(), point);
}

// The signal comes last: Qt still uses a button after its signal, which a slot may have deleted.
void SetChecked(QAbstractButton* button, bool isChecked)
{
    if (button->isChecked() == isChecked)
        return;
    {
        const QSignalBlocker blocker(button);
        button->setChecked(isChecked);
    }
    Q_EMIT button->toggled(isChecked);
}

// The part or the widget itself, whichever takes the keyboard first.
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

/// The floating window: transparent itself, with the panel inside. It mirrors its visibility in the button's checked
/// state, whatever shows or hides it.
struct ButtonWithPopUpContainer::PopUpWindow : public ZFrame
{
    class AccessibleButton;

    struct Settings
    {
        PreferredPopupDirection direction = DIRECTION_DOWN_RIGHT;
        PreferredPopupAnchor anchor = ANCHOR_BOTTOM_LEFT;
        bool canOverlapButton = true;
        int vOffset = 0;
        int hOffset = 0;
    };

    explicit PopUpWindow(ButtonWithPopUpContainer* owner);

    void setVisible(bool visible) override;
    void Open();
    void LeaveButton();
    bool IsButtonInUse() const { return button->isVisible() && button->isEnabled(); }
    bool Accepts(const QWidget* widget, const char* function) const;
    QPoint ComputePopupPosition() const;
    QRect ButtonRect() const { return QRect(button->mapToGlobal(QPoint(0, 0)), button->size()); }

    ButtonWithPopUpContainer* button; ///< null once the window has outlived it
    ZFrame* container;
    QBoxLayout* containerLayout;
    Settings settings;
    Settings shown; ///< the settings of when the window was shown last
    bool showPopupOnClick = true;
    bool isMouseReleased = false; ///< while the button handles that
    bool wasInUse = false;        ///< the button, when it was clicked last

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void FocusFirstWidget();
    void WatchButton(bool isWatched);

    int eventDepth = 0;
};

ButtonWithPopUpContainer::PopUpWindow::PopUpWindow(ButtonWithPopUpContainer* owner)
    : ZFrame(owner), button(owner), container(new ZFrame(this)),
      containerLayout(Common::MakeBoxLayout<QVBoxLayout>(container))
{
    setObjectName(QStringLiteral("popUpWindow"));
    container->setObjectName(QStringLiteral("popUpContainer"));
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    Common::MakeBoxLayout<QVBoxLayout>(this)->addWidget(container);
    setAttribute(Qt::WA_TranslucentBackground, true);
    container->setAutoFillBackground(true);
}

// The button is checked and unchecked here and not in the handlers of the events: a slot may delete the button, and the
// window with it, which Qt does not survive while it shows or hides the window.
void ButtonWithPopUpContainer::PopUpWindow::setVisible(bool visible)
{
    const bool wasVisible = isVisible();
    ZFrame::setVisible(visible);
    if (!button || isVisible() == wasVisible)
        return;
    WatchButton(!wasVisible);
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(button, changed);
    QAccessible::updateAccessibility(&event);
    SetChecked(button, !wasVisible);
}

/// Shows the window. Opened by a key or by the program, it takes the keyboard; opened by the mouse it has no focus that
/// a frame would show.
void ButtonWithPopUpContainer::PopUpWindow::Open()
{
    const bool isByMouse = isMouseReleased;
    if (!isVisible() && focusWidget())
        focusWidget()->clearFocus();
    const QPointer<PopUpWindow> self(this);
    show();
    if (self && !isByMouse)
        FocusFirstWidget();
}

void ButtonWithPopUpContainer::PopUpWindow::FocusFirstWidget()
{
    for (int i = 0; i < containerLayout->count() && !focusWidget(); ++i) {
        QWidget* widget = containerLayout->itemAt(i)->widget();
        if (QWidget* first = widget ? FirstFocusable(widget) : nullptr)
            first->setFocus(Qt::TabFocusReason);
    }
}

/// Called by the button's destructor. The window goes with the button, but for one that handles an event, out of which
/// the button was deleted: that one goes when it is done.
void ButtonWithPopUpContainer::PopUpWindow::LeaveButton()
{
    button = nullptr;
    if (eventDepth == 0)
        return;
    setParent(nullptr, windowFlags());
    deleteLater();
}

/// Whether the widget may become a part of the panel. Like Qt's layouts, warns of one that may not.
bool ButtonWithPopUpContainer::PopUpWindow::Accepts(const QWidget* widget, const char* function) const
{
    const bool isAccepted = Common::CanBeParentOf(container, widget);
    if (!isAccepted)
        qWarning("ButtonWithPopUpContainer::%s: the widget holds the panel", function);
    return isAccepted;
}

// The button moves with each of its parents up to its window.
void ButtonWithPopUpContainer::PopUpWindow::WatchButton(bool isWatched)
{
    for (QWidget* widget = button; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        if (isWatched)
            widget->installEventFilter(this);
        else
            widget->removeEventFilter(this);
    }
}

bool ButtonWithPopUpContainer::PopUpWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (!button || !isVisible())
        return ZFrame::eventFilter(watched, event);
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        move(ComputePopupPosition());
    // A parent hears of its end before Qt walks over its children, which a slot that deletes the button would disturb.
    if (event->type() != QEvent::Hide || watched == button)
        return ZFrame::eventFilter(watched, event);
    const QPointer<QObject> receiver(watched);
    ++eventDepth;
    hide();
    --eventDepth;
    return !receiver;
}

bool ButtonWithPopUpContainer::PopUpWindow::event(QEvent* event)
{
    if (event->type() == QEvent::DeferredDelete)
        return ZFrame::event(event); // deletes the window
    ++eventDepth;
    const bool isHandled = ZFrame::event(event);
    // Nothing in it can be used when the button was disabled.
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        hide();
    if (event->type() == QEvent::LayoutRequest && button && isVisible()) {
        adjustSize();
        move(ComputePopupPosition());
    }
    --eventDepth;
    return isHandled;
}

QPoint ButtonWithPopUpContainer::PopUpWindow::ComputePopupPosition() const
{
    const PopUpPlacement::Scene scene{ButtonRect(), size(), shown.hOffset, shown.vOffset};
    return PopUpPlacement::FindPosition(
        scene, {shown.anchor, shown.direction}, shown.canOverlapButton,
        [this](const QPoint& point) { return GetBestPopupPosition(this, button, point); });
}

void ButtonWithPopUpContainer::PopUpWindow::showEvent(QShowEvent* event)
{
    // A window does not inherit its parent's direction.
    setLayoutDirection(button->layoutDirection());
    adjustSize();
    ZFrame::showEvent(event);
    shown = settings;
    move(ComputePopupPosition());
    // The pop-up grabs the mouse, so the button would not learn that the pointer left it.
    button->setAttribute(Qt::WA_UnderMouse, false);
}

void ButtonWithPopUpContainer::PopUpWindow::mousePressEvent(QMouseEvent* event)
{
    // A press outside closes the pop-up and is then given to what lies under it. The button would open it again.
    setAttribute(Qt::WA_NoMouseReplay, button && ButtonRect().contains(event->globalPos()));
    ZFrame::mousePressEvent(event);
}

/// For Qt, a button that can be checked is a check box. This one opens something, and tells whether it is open.
class ButtonWithPopUpContainer::PopUpWindow::AccessibleButton : public QAccessibleWidget
{
public:
    explicit AccessibleButton(ButtonWithPopUpContainer* button)
        : QAccessibleWidget(button, QAccessible::ButtonMenu), button(button)
    {}

    QString text(QAccessible::Text kind) const override
    {
        QString own = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && own.isEmpty() ? Common::WithoutMnemonic(button->text()) : own;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = button->popUp->isVisible();
        state.collapsed = !state.expanded;
        state.pressed = button->isDown();
        state.checkable = button->isCheckable();
        state.checked = button->isChecked();
        return state;
    }

    QStringList actionNames() const override { return QStringList(pressAction()) + QAccessibleWidget::actionNames(); }

    void doAction(const QString& name) override
    {
        if (name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (button->popUp->isVisible())
            button->popUp->hide();
        else
            button->click();
    }

    QStringList keyBindingsForAction(const QString& name) const override
    {
        const QKeySequence keys = button->shortcut();
        return name == pressAction() && !keys.isEmpty() ? QStringList(keys.toString()) : QStringList();
    }

private:
    ButtonWithPopUpContainer* button;
};

ButtonWithPopUpContainer::ButtonWithPopUpContainer(QWidget* parent) : QToolButton(parent), popUp(new PopUpWindow(this))
{
    Common::FollowLayoutDirection();
    Common::AccessibleFactory<ButtonWithPopUpContainer, PopUpWindow::AccessibleButton>::Install();
    setCheckable(true);
    connect(this, &QAbstractButton::clicked, this, [this] {
        const bool isWithdrawn = popUp->wasInUse && !popUp->IsButtonInUse();
        if (popUp->showPopupOnClick && !isWithdrawn)
            ShowPopup();
        else
            SetChecked(this, false);
    });
}

ButtonWithPopUpContainer::~ButtonWithPopUpContainer()
{
    popUp->LeaveButton();
}

ButtonWithPopUpContainer::LayoutDirection ButtonWithPopUpContainer::GetLayoutDirection() const
{
    const auto direction = LayoutDirection(popUp->containerLayout->direction());
    return IsKnown(direction) ? direction : LAYOUT_LEFT_TO_RIGHT;
}

void ButtonWithPopUpContainer::SetLayoutDirection(LayoutDirection direction)
{
    popUp->containerLayout->setDirection(IsKnown(direction) ? QBoxLayout::Direction(direction)
                                                            : QBoxLayout::LeftToRight);
}

ButtonWithPopUpContainer::PreferredPopupDirection ButtonWithPopUpContainer::GetPreferredPopupDirection() const
{
    return popUp->settings.direction;
}

void ButtonWithPopUpContainer::SetPreferredPopupDirection(PreferredPopupDirection direction)
{
    popUp->settings.direction = direction;
}

ButtonWithPopUpContainer::PreferredPopupAnchor ButtonWithPopUpContainer::GetPreferredPopupAnchor() const
{
    return popUp->settings.anchor;
}

void ButtonWithPopUpContainer::SetPreferredPopupAnchor(PreferredPopupAnchor anchor)
{
    popUp->settings.anchor = anchor;
}

bool ButtonWithPopUpContainer::GetPopupCanOverlapButton() const
{
    return popUp->settings.canOverlapButton;
}

void ButtonWithPopUpContainer::SetPopupCanOverlapButton(bool canOverlap)
{
    popUp->settings.canOverlapButton = canOverlap;
}

bool ButtonWithPopUpContainer::GetShowPopupOnClick() const
{
    return popUp->showPopupOnClick;
}

void ButtonWithPopUpContainer::SetShowPopupOnClick(bool show)
{
    popUp->showPopupOnClick = show;
}

int ButtonWithPopUpContainer::GetPopupHOffset() const
{
    return popUp->settings.hOffset;
}

void ButtonWithPopUpContainer::SetPopupHOffset(int offset)
{
    popUp->settings.hOffset = offset;
}

int ButtonWithPopUpContainer::GetPopupVOffset() const
{
    return popUp->settings.vOffset;
}

void ButtonWithPopUpContainer::SetPopupVOffset(int offset)
{
    popUp->settings.vOffset = offset;
}

void ButtonWithPopUpContainer::AppendWidget(QWidget* widget)
{
    if (!widget) {
        LOG_SOURCE.Error(273, "Zelkor::Vx::UI::ButtonWithPopUpContainer::AppendWidget", "widget is NULL");
        return;
    }
    if (!popUp->Accepts(widget, "AppendWidget"))
        return;
    widget->setParent(popUp);
    popUp->containerLayout->addWidget(widget);
}

void ButtonWithPopUpContainer::InsertWidget(QWidget* widget, int index)
{
    if (!widget) {
        LOG_SOURCE.Error(261, "Zelkor::Vx::UI::ButtonWithPopUpContainer::InsertWidget", "widget is NULL");
        return;
    }
    if (!popUp->Accepts(widget, "InsertWidget"))
        return;
    widget->setParent(popUp);
    // The layout does not check for an index past its end.
    popUp->containerLayout->insertWidget(qMin(index, WidgetsCount()), widget);
}

void ButtonWithPopUpContainer::RemoveWidget(QWidget* widget)
{
    if (!widget) {
        LOG_SOURCE.Error(290, "Zelkor::Vx::UI::ButtonWithPopUpContainer::RemoveWidget", "widget is NULL");
        return;
    }
    if (!popUp->Accepts(widget, "RemoveWidget"))
        return;
    popUp->containerLayout->removeWidget(widget);
    widget->setParent(nullptr);
    widget->deleteLater();
}

void ButtonWithPopUpContainer::RemoveWidget(int index)
{
    RemoveWidget(GetWidget(index));
}

QWidget* ButtonWithPopUpContainer::GetWidget(int index) const
{
    QLayoutItem* item = popUp->containerLayout->itemAt(index);
    if (!item) {
        LOG_SOURCE.Error(304, "Zelkor::Vx::UI::ButtonWithPopUpContainer::GetWidget", "item is NULL");
        return nullptr;
    }
    return item->widget();
}

int ButtonWithPopUpContainer::WidgetsCount() const
{
    return popUp->containerLayout->count();
}

void ButtonWithPopUpContainer::ShowPopup()
{
    const QPointer<ButtonWithPopUpContainer> self(this);
    const bool wasInUse = popUp->IsButtonInUse();
    SetChecked(this, true);
    if (!self)
        return;
    // A slot may have hidden or disabled the button.
    if (wasInUse && !popUp->IsButtonInUse())
        SetChecked(this, false);
    else
        popUp->Open();
}

void ButtonWithPopUpContainer::nextCheckState()
{
    popUp->wasInUse = popUp->IsButtonInUse();
    QToolButton::nextCheckState();
}

// By these keys, which open combo boxes and menu buttons too, a click.
void ButtonWithPopUpContainer::keyPressEvent(QKeyEvent* event)
{
    if (!Common::OpensPopUp(*event))
        return QToolButton::keyPressEvent(event);
    event->accept();
    click();
}

void ButtonWithPopUpContainer::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointer<ButtonWithPopUpContainer> self(this);
    popUp->isMouseReleased = true;
    QToolButton::mouseReleaseEvent(event);
    if (self)
        popUp->isMouseReleased = false;
}

// The panel closes first: while Qt hides the button, a slot of toggled() could not delete it.
void ButtonWithPopUpContainer::setVisible(bool visible)
{
    const QPointer<ButtonWithPopUpContainer> self(this);
    if (!visible)
        popUp->hide();
    if (self)
        QToolButton::setVisible(visible);
}

void ButtonWithPopUpContainer::hideEvent(QHideEvent* event)
{
    const QPointer<ButtonWithPopUpContainer> self(this);
    popUp->hide();
    if (self)
        QToolButton::hideEvent(event);
}

} // namespace Zelkor::Vx::UI
