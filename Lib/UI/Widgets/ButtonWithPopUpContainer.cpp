#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/CanBeParentOf.h>
#include <UI/Common/LogSource.h>
#include <UI/Common/MirroredStyle.h>
#include <UI/Common/PopUpKeys.h>
#include <UI/Widgets/AccessiblePopUpButton.h>
#include <UI/Widgets/PopUpWindow.h>

#include <QBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace Zelkor::Vx::UI {

namespace {

const Common::LogSource LOG_SOURCE("Lib/UI/Widgets/ButtonWithPopUpContainer");

// The values of the enumerators match, so that a cast converts them.
static_assert(int(ButtonWithPopUpContainer::LAYOUT_LEFT_TO_RIGHT) == QBoxLayout::LeftToRight);
static_assert(int(ButtonWithPopUpContainer::LAYOUT_RIGHT_TO_LEFT) == QBoxLayout::RightToLeft);
static_assert(int(ButtonWithPopUpContainer::LAYOUT_TOP_TO_BOTTOM) == QBoxLayout::TopToBottom);
static_assert(int(ButtonWithPopUpContainer::LAYOUT_BOTTOM_TO_TOP) == QBoxLayout::BottomToTop);
static_assert(int(ButtonWithPopUpContainer::ANCHOR_TOP_LEFT) == int(PopUpPlacement::Anchor::TopLeft));
static_assert(int(ButtonWithPopUpContainer::ANCHOR_TOP_CENTER) == int(PopUpPlacement::Anchor::TopCenter));
static_assert(int(ButtonWithPopUpContainer::ANCHOR_TOP_RIGHT) == int(PopUpPlacement::Anchor::TopRight));
static_assert(int(ButtonWithPopUpContainer::ANCHOR_BOTTOM_LEFT) == int(PopUpPlacement::Anchor::BottomLeft));
static_assert(int(ButtonWithPopUpContainer::ANCHOR_BOTTOM_CENTER) == int(PopUpPlacement::Anchor::BottomCenter));
static_assert(int(ButtonWithPopUpContainer::ANCHOR_BOTTOM_RIGHT) == int(PopUpPlacement::Anchor::BottomRight));
static_assert(int(ButtonWithPopUpContainer::DIRECTION_DOWN_RIGHT) == int(PopUpPlacement::Direction::DownRight));
static_assert(int(ButtonWithPopUpContainer::DIRECTION_DOWN_CENTER) == int(PopUpPlacement::Direction::DownCenter));
static_assert(int(ButtonWithPopUpContainer::DIRECTION_DOWN_LEFT) == int(PopUpPlacement::Direction::DownLeft));
static_assert(int(ButtonWithPopUpContainer::DIRECTION_UP_RIGHT) == int(PopUpPlacement::Direction::UpRight));
static_assert(int(ButtonWithPopUpContainer::DIRECTION_UP_CENTER) == int(PopUpPlacement::Direction::UpCenter));
static_assert(int(ButtonWithPopUpContainer::DIRECTION_UP_LEFT) == int(PopUpPlacement::Direction::UpLeft));

bool IsKnown(ButtonWithPopUpContainer::LayoutDirection direction)
{
    return direction >= ButtonWithPopUpContainer::LAYOUT_LEFT_TO_RIGHT &&
           direction <= ButtonWithPopUpContainer::LAYOUT_BOTTOM_TO_TOP;
}

// Returns whether the panel may own the widget. Like Qt's layouts, warns when it may not.
bool CanOwn(const PopUpWindow& popUp, const QWidget* widget, const char* function)
{
    const bool canOwn = Common::CanBeParentOf(popUp.container, widget);
    if (!canOwn)
        qWarning("ButtonWithPopUpContainer::%s: the widget holds the panel", function);
    return canOwn;
}

} // namespace

class ButtonWithPopUpContainer::AccessibleButton : public AccessiblePopUpButton
{
public:
    explicit AccessibleButton(ButtonWithPopUpContainer* button) : AccessiblePopUpButton(button), button(button) {}

    QStringList actionNames() const override { return QStringList(pressAction()) + QAccessibleWidget::actionNames(); }

    void doAction(const QString& name) override
    {
        if (name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (IsPopUpVisible())
            button->popUp->hide();
        else
            button->click();
    }

protected:
    bool IsPopUpVisible() const override { return button->popUp->isVisible(); }

private:
    ButtonWithPopUpContainer* button;
};

ButtonWithPopUpContainer::ButtonWithPopUpContainer(QWidget* parent) : QToolButton(parent), popUp(new PopUpWindow(this))
{
    Common::FollowLayoutDirection();
    Common::AccessibleFactory<ButtonWithPopUpContainer, AccessibleButton>::Install();
    setCheckable(true);
    connect(this, &QAbstractButton::clicked, this, [this] {
        const bool isWithdrawn = popUp->wasButtonInUse && !popUp->IsButtonInUse();
        if (popUp->showPopupOnClick && !isWithdrawn)
            ShowPopup();
        else
            popUp->SetButtonChecked(false);
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
    return PreferredPopupDirection(popUp->settings.direction);
}

void ButtonWithPopUpContainer::SetPreferredPopupDirection(PreferredPopupDirection direction)
{
    popUp->settings.direction = PopUpPlacement::Direction(direction);
}

ButtonWithPopUpContainer::PreferredPopupAnchor ButtonWithPopUpContainer::GetPreferredPopupAnchor() const
{
    return PreferredPopupAnchor(popUp->settings.anchor);
}

void ButtonWithPopUpContainer::SetPreferredPopupAnchor(PreferredPopupAnchor anchor)
{
    popUp->settings.anchor = PopUpPlacement::Anchor(anchor);
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
    if (!CanOwn(*popUp, widget, "AppendWidget"))
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
    if (!CanOwn(*popUp, widget, "InsertWidget"))
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
    if (!CanOwn(*popUp, widget, "RemoveWidget"))
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
    popUp->SetButtonChecked(true);
    if (!self)
        return;
    // A slot may have hidden or disabled the button.
    if (wasInUse && !popUp->IsButtonInUse())
        popUp->SetButtonChecked(false);
    else
        popUp->Open();
}

void ButtonWithPopUpContainer::nextCheckState()
{
    popUp->wasButtonInUse = popUp->IsButtonInUse();
    QToolButton::nextCheckState();
}

// Clicks the button by the keys that open combo boxes and menu buttons.
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
