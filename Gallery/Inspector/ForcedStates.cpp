#include "ForcedStates.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QTabBar>

namespace Zelkor::Gallery {

namespace {

constexpr QPoint OUTSIDE(-1, -1);

QRect HandleOf(const QSlider& slider)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.subControls = QStyle::SC_All;
    option.orientation = slider.orientation();
    option.state.setFlag(QStyle::State_Horizontal, slider.orientation() == Qt::Horizontal);
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.sliderPosition = option.sliderValue = slider.sliderPosition();
    option.upsideDown = slider.orientation() == Qt::Vertical
                            ? !slider.invertedAppearance()
                            : slider.invertedAppearance() != (slider.layoutDirection() == Qt::RightToLeft);
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider);
}

// Returns the point where the mouse shows the most.
QPoint PointOfInterest(const QWidget& widget)
{
    if (const auto* slider = qobject_cast<const QSlider*>(&widget)) {
        for (const auto* thumb : slider->findChildren<QAbstractButton*>()) {
            if (thumb->isVisible())
                return thumb->mapTo(&widget, thumb->rect().center());
        }
        return HandleOf(*slider).center();
    }
    if (const auto* bar = qobject_cast<const QTabBar*>(&widget)) {
        for (int i = 0; i < bar->count(); ++i) {
            if (i != bar->currentIndex() && bar->isTabEnabled(i))
                return bar->tabRect(i).center();
        }
    }
    return widget.rect().center();
}

void SendMouse(QEvent::Type type, QWidget* widget, const QPoint& place)
{
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const auto buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, place, widget->mapTo(widget->window(), place), widget->mapToGlobal(place), button, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

bool IsUnderMouse(const QWidget* widget)
{
    const QWidget* there = QApplication::widgetAt(QCursor::pos());
    return there && (there == widget || widget->isAncestorOf(there));
}

} // namespace

ForcedStates::ForcedStates(QWidget* target, QObject* parent) : QObject(parent), target(target) {}

bool ForcedStates::IsApplicable(State state) const
{
    if (!target)
        return false;
    if (IsForced(state))
        return true;
    const bool isEnabled = target->isEnabled();
    switch (state) {
    case PRESSED:
        return isEnabled && (qobject_cast<QAbstractButton*>(PartUnderPoint()) || qobject_cast<QSlider*>(target));
    case FOCUS:
        return isEnabled && target->focusPolicy() != Qt::NoFocus;
    case CHECKED:
        return target->property("checkable").toBool() && !target->property("checked").toBool();
    default:
        return isEnabled;
    }
}

QWidget* ForcedStates::PartUnderPoint() const
{
    QWidget* part = target->childAt(PointOfInterest(*target));
    return part ? part : target.data();
}

void ForcedStates::Force(State state, bool on)
{
    if (!IsApplicable(state) || IsForced(state) == on)
        return;
    forced ^= 1 << state;
    switch (state) {
    case HOVER:
        return ForceHover(on);
    case PRESSED:
        return ForcePressed(on);
    case FOCUS:
        if (on) {
            ownProxy = target->focusProxy();
            target->installEventFilter(this);
            connect(qApp, &QApplication::focusChanged, this, &ForcedStates::MoveFocusProxy);
            return MoveFocusProxy();
        }
        disconnect(qApp, nullptr, this, nullptr);
        target->setFocusProxy(ownProxy);
        return target->update();
    case CHECKED:
        target->setProperty("checked", on);
        return;
    case DISABLED:
        target->setEnabled(!on);
        return;
    }
}

void ForcedStates::ForceHover(bool on)
{
    if (on) {
        hovered.clear();
        point = PointOfInterest(*target);
        for (QWidget* part = PartUnderPoint();; part = part->parentWidget()) {
            hovered.append(part);
            if (part == target)
                break;
        }
    }
    for (const QPointer<QWidget>& part : hovered) {
        if (!part || (!on && IsUnderMouse(part)))
            continue;
        const QPoint place = part->mapFrom(target, point);
        if (on) {
            part->installEventFilter(this);
            QEnterEvent enter(place, part->mapTo(part->window(), place), part->mapToGlobal(place));
            QApplication::sendEvent(part, &enter);
        } else {
            QEvent leave(QEvent::Leave);
            QApplication::sendEvent(part, &leave);
        }
        if (part)
            part->update();
    }
    // The handle of a pressed slider would follow the mouse.
    if (!IsForced(PRESSED))
        MoveMouse(on);
}

// Moves the mouse to the hovered widget, or away from it. QApplication sends the event as hover events, too.
void ForcedStates::MoveMouse(bool toWidget)
{
    const QPointer<QWidget> innermost = hovered.value(0);
    if (innermost && (toWidget || !IsUnderMouse(innermost)))
        SendMouse(QEvent::MouseMove, innermost, toWidget ? innermost->mapFrom(target, point) : OUTSIDE);
}

void ForcedStates::ForcePressed(bool on)
{
    if (on) {
        pressed = PartUnderPoint();
        pressed->installEventFilter(this);
    }
    if (!pressed)
        return;
    point = PointOfInterest(*target);
    if (auto* button = qobject_cast<QAbstractButton*>(pressed))
        button->setDown(on);
    else
        SendMouse(on ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease, pressed, pressed->mapFrom(target, point));
    if (!on)
        MoveMouse(IsForced(HOVER));
}

// With the focused widget as its focus proxy, QWidget::hasFocus() is true for the target.
void ForcedStates::MoveFocusProxy()
{
    QWidget* focused = QApplication::focusWidget();
    if (!target || focused == target || (focused && focused->focusProxy()))
        return;
    target->setFocusProxy(focused);
    target->update();
}

bool ForcedStates::eventFilter(QObject* watched, QEvent* event)
{
    auto* part = static_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::Leave:
    case QEvent::HoverLeave:
        if (!IsForced(HOVER))
            break;
        // QApplication clears the attribute before it delivers the event.
        part->setAttribute(Qt::WA_UnderMouse);
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        if (IsForced(PRESSED) && watched == pressed && event->spontaneous())
            return true;
        // QApplication has given the focus to the proxy.
        if (IsForced(FOCUS) && watched == target && event->type() == QEvent::MouseButtonPress &&
            (target->focusPolicy() & Qt::ClickFocus)) {
            target->setFocusProxy(ownProxy);
            target->setFocus(Qt::MouseFocusReason);
        }
        break;
    case QEvent::Paint:
        // A button that loses the focus or becomes disabled is up.
        if (auto* button = qobject_cast<QAbstractButton*>(part); button && button == pressed && IsForced(PRESSED))
            button->setDown(true);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zelkor::Gallery
