#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/BoxLayouts.h>
#include <UI/Common/LogSource.h>
#include <UI/Common/MirroredStyle.h>
#include <UI/Kit/ZFrame.h>
#include <UI/Widgets/PopUpPlacement.h>

#include <QApplication>
#include <QDesktopWidget>
#include <QMouseEvent>
#include <QPointer>

namespace Zelkor::Vx::UI {

namespace {

const Common::LogSource LOG_SOURCE("Lib/UI/Widgets/ButtonWithPopUpContainer");

// The enumerators have the values of QBoxLayout::Direction, one to one.
static_assert(int(ButtonWithPopUpContainer::LAYOUT_LEFT_TO_RIGHT) == QBoxLayout::LeftToRight);
static_assert(int(ButtonWithPopUpContainer::LAYOUT_RIGHT_TO_LEFT) == QBoxLayout::RightToLeft);
static_assert(int(ButtonWithPopUpContainer::LAYOUT_TOP_TO_BOTTOM) == QBoxLayout::TopToBottom);
static_assert(int(ButtonWithPopUpContainer::LAYOUT_BOTTOM_TO_TOP) == QBoxLayout::BottomToTop);

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

} // namespace

/// The floating window: transparent itself, with the panel inside. It mirrors its visibility in the button's checked
/// state, whatever shows or hides it.
struct ButtonWithPopUpContainer::PopUpWindow : public ZFrame
{
    class AccessibleButton;

    explicit PopUpWindow(ButtonWithPopUpContainer* owner);

    QPoint ComputePopupPosition() const;
    void TellExpanded();
    QRect ButtonRect() const { return QRect(button->mapToGlobal(QPoint(0, 0)), button->size()); }

    ButtonWithPopUpContainer* button;
    ZFrame* container;
    QBoxLayout* containerLayout;
    PreferredPopupDirection preferredDirection = DIRECTION_DOWN_RIGHT;
    PreferredPopupAnchor preferredAnchor = ANCHOR_BOTTOM_LEFT;
    bool popupCanOverlapButton = true;
    bool showPopupOnClick = true;
    int popupVOffset = 0;
    int popupHOffset = 0;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
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

QPoint ButtonWithPopUpContainer::PopUpWindow::ComputePopupPosition() const
{
    const PopUpPlacement::Scene scene{ButtonRect(), size(), popupHOffset, popupVOffset};
    return PopUpPlacement::FindPosition(
        scene, {preferredAnchor, preferredDirection}, popupCanOverlapButton,
        [this](const QPoint& point) { return GetBestPopupPosition(this, button, point); });
}

void ButtonWithPopUpContainer::PopUpWindow::showEvent(QShowEvent* event)
{
    // A window does not inherit its parent's direction.
    setLayoutDirection(button->layoutDirection());
    adjustSize();
    ZFrame::showEvent(event);
    button->setChecked(true);
    move(ComputePopupPosition());
    // The pop-up grabs the mouse, so the button would not learn that the pointer left it.
    button->setAttribute(Qt::WA_UnderMouse, false);
}

void ButtonWithPopUpContainer::PopUpWindow::hideEvent(QHideEvent* event)
{
    button->setChecked(false);
    ZFrame::hideEvent(event);
}

void ButtonWithPopUpContainer::PopUpWindow::mousePressEvent(QMouseEvent* event)
{
    // A press outside closes the pop-up and is then given to what lies under it. The button would open it again.
    setAttribute(Qt::WA_NoMouseReplay, ButtonRect().contains(event->globalPos()));
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
        return kind == QAccessible::Name && own.isEmpty() ? QString(button->text()).remove(QLatin1Char('&')) : own;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = button->popUp->isVisible();
        state.collapsed = !state.expanded;
        state.pressed = button->isDown();
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

void ButtonWithPopUpContainer::PopUpWindow::TellExpanded()
{
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(button, changed);
    QAccessible::updateAccessibility(&event);
}

ButtonWithPopUpContainer::ButtonWithPopUpContainer(QWidget* parent) : QToolButton(parent), popUp(new PopUpWindow(this))
{
    Common::FollowLayoutDirection();
    Common::AccessibleFactory<ButtonWithPopUpContainer, PopUpWindow::AccessibleButton>::Install();
    setCheckable(true);
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (popUp->showPopupOnClick)
            ShowPopup();
        else
            setChecked(false);
    });
}

ButtonWithPopUpContainer::~ButtonWithPopUpContainer() = default;

ButtonWithPopUpContainer::LayoutDirection ButtonWithPopUpContainer::GetLayoutDirection() const
{
    return LayoutDirection(popUp->containerLayout->direction());
}

void ButtonWithPopUpContainer::SetLayoutDirection(LayoutDirection direction)
{
    const bool known = direction >= LAYOUT_LEFT_TO_RIGHT && direction <= LAYOUT_BOTTOM_TO_TOP;
    popUp->containerLayout->setDirection(known ? QBoxLayout::Direction(direction) : QBoxLayout::LeftToRight);
}

ButtonWithPopUpContainer::PreferredPopupDirection ButtonWithPopUpContainer::GetPreferredPopupDirection() const
{
    return popUp->preferredDirection;
}

void ButtonWithPopUpContainer::SetPreferredPopupDirection(PreferredPopupDirection direction)
{
    popUp->preferredDirection = direction;
}

ButtonWithPopUpContainer::PreferredPopupAnchor ButtonWithPopUpContainer::GetPreferredPopupAnchor() const
{
    return popUp->preferredAnchor;
}

void ButtonWithPopUpContainer::SetPreferredPopupAnchor(PreferredPopupAnchor anchor)
{
    popUp->preferredAnchor = anchor;
}

bool ButtonWithPopUpContainer::GetPopupCanOverlapButton() const
{
    return popUp->popupCanOverlapButton;
}

void ButtonWithPopUpContainer::SetPopupCanOverlapButton(bool canOverlap)
{
    popUp->popupCanOverlapButton = canOverlap;
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
    return popUp->popupHOffset;
}

void ButtonWithPopUpContainer::SetPopupHOffset(int offset)
{
    popUp->popupHOffset = offset;
}

int ButtonWithPopUpContainer::GetPopupVOffset() const
{
    return popUp->popupVOffset;
}

void ButtonWithPopUpContainer::SetPopupVOffset(int offset)
{
    popUp->popupVOffset = offset;
}

void ButtonWithPopUpContainer::AppendWidget(QWidget* widget)
{
    if (!widget) {
        LOG_SOURCE.Error(273, "Zelkor::Vx::UI::ButtonWithPopUpContainer::AppendWidget", "widget is NULL");
        return;
    }
    widget->setParent(popUp);
    popUp->containerLayout->addWidget(widget);
}

void ButtonWithPopUpContainer::InsertWidget(QWidget* widget, int index)
{
    if (!widget) {
        LOG_SOURCE.Error(261, "Zelkor::Vx::UI::ButtonWithPopUpContainer::InsertWidget", "widget is NULL");
        return;
    }
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
    setChecked(true);
    if (self)
        popUp->show();
}

void ButtonWithPopUpContainer::hideEvent(QHideEvent* event)
{
    popUp->hide();
    QToolButton::hideEvent(event);
}

} // namespace Zelkor::Vx::UI
