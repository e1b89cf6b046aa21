#include <UI/Kit/ZSliderThumb.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/ClampToWidgetSize.h>
#include <UI/Kit/Internal/SliderThumbHost.h>

#include <QAccessibleWidget>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPointer>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionToolButton>
#include <QStylePainter>

#include <algorithm>

namespace {

using Zelkor::Vx::UI::Common::ClampToWidgetSize;

constexpr QSize SIZE(14, 14);
constexpr QPoint NOWHERE(-1, -1);
constexpr int STEP = 120; // units of one notch of a wheel

bool IsUpwards(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Right;
}

bool IsDownwards(int key)
{
    return key == Qt::Key_Down || key == Qt::Key_Left;
}

/// Reports a thumb as a slider rather than a button.
class AccessibleThumb : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleThumb(ZSliderThumb* thumb) : QAccessibleWidget(thumb, QAccessible::Slider), thumb(thumb) {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = thumb->isSelectable();
        state.selected = thumb->isChecked();
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? QString::number(thumb->value()) : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return thumb->value(); }
    void setCurrentValue(const QVariant& value) override { thumb->setValue(value.toInt()); }
    QVariant minimumValue() const override { return slider() ? qMax(slider()->minimum(), thumb->lowerLimit()) : 0; }
    QVariant maximumValue() const override { return slider() ? qMin(slider()->maximum(), thumb->upperLimit()) : 0; }
    QVariant minimumStepSize() const override { return slider() ? slider()->singleStep() : 0; }

private:
    const QSlider* slider() const { return qobject_cast<QSlider*>(thumb->parentWidget()); }

    ZSliderThumb* thumb;
};

} // namespace

ZSliderThumb::ZSliderThumb(QSlider* slider, Zelkor::Vx::UI::Kit::SliderThumbHost* host)
    : QToolButton(slider), slider(slider), host(host), currentValue(slider ? slider->minimum() : 0)
{
    Zelkor::Vx::UI::Common::AccessibleFactory<ZSliderThumb, AccessibleThumb>::Install();
    setCheckable(true);
    setFixedSize(SIZE);
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
}

ZSliderThumb::~ZSliderThumb()
{
    if (slider)
        host->forget(this);
}

void ZSliderThumb::setName(const QString& name)
{
    // Keeps an accessible name set by the application.
    if (accessibleName().isEmpty() || accessibleName() == currentName)
        setAccessibleName(name);
    currentName = name;
}

void ZSliderThumb::setStyleTag(const QString& tag)
{
    // Style sheets set this property during polish(), which must not polish again.
    if (tag == currentStyleTag)
        return;
    currentStyleTag = tag;
    style()->unpolish(this);
    style()->polish(this);
    update();
}

void ZSliderThumb::setPointOffset(int offset)
{
    currentPointOffset = offset;
    setValue(currentValue);
}

void ZSliderThumb::setParentMargin(int margin)
{
    currentParentMargin = margin;
    setValue(currentValue);
    if (slider)
        slider->updateGeometry();
}

void ZSliderThumb::setZOrder(int order)
{
    if (slider)
        host->setZOrder(*this, order);
}

int ZSliderThumb::bounded(int value) const
{
    const int inRange = slider ? qBound(slider->minimum(), value, slider->maximum()) : value;
    return qMin(upperBound, qMax(lowerBound, inRange));
}

void ZSliderThumb::setValue(int value)
{
    const int newValue = bounded(value);
    const bool changes = newValue != currentValue;
    currentValue = newValue;
    place();
    if (!changes)
        return;
    QAccessibleValueChangeEvent accessibleEvent(this, newValue);
    QAccessible::updateAccessibility(&accessibleEvent);
    Q_EMIT valueChanged(newValue);
}

void ZSliderThumb::setLowerLimit(int limit)
{
    lowerBound = limit;
    setValue(currentValue);
}

void ZSliderThumb::setUpperLimit(int limit)
{
    upperBound = limit;
    setValue(currentValue);
}

void ZSliderThumb::place()
{
    if (!slider)
        return;
    const int position = host->track().pixelOfThumb(currentValue) - ClampToWidgetSize(currentPointOffset);
    const int margin = ClampToWidgetSize(currentParentMargin);
    if (slider->orientation() == Qt::Horizontal)
        move(position, margin);
    else
        move(margin, position);
}

// Handles no input and paints nothing without a slider.
bool ZSliderThumb::event(QEvent* event)
{
    return slider ? QToolButton::event(event) : QObject::event(event);
}

QSize ZSliderThumb::sizeHint() const
{
    return {1, 1}; // the fixed size applies
}

// As setChecked(), but emits the signal last: a slot may delete the thumb, which QAbstractButton does not allow.
void ZSliderThumb::check(bool on)
{
    if (!isCheckable() || on == isChecked())
        return;
    {
        const QSignalBlocker silence(this);
        setChecked(on);
    }
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent accessibleEvent(this, changed);
    QAccessible::updateAccessibility(&accessibleEvent);
    Q_EMIT toggled(on);
}

void ZSliderThumb::nextCheckState()
{
    if (selectable)
        check(!isChecked());
}

void ZSliderThumb::finishDrag()
{
    armed = false;
    pressPosition = NOWHERE;
    if (!dragging)
        return;
    dragging = false;
    Q_EMIT dragFinished();
}

// A tool button toggles on each release, also at the end of a drag. Calls `handler` while the thumb is not checkable,
// without repainting it. Returns false if the thumb was deleted.
bool ZSliderThumb::handleUnchecked(void (ZSliderThumb::*handler)(QMouseEvent*), QMouseEvent* event)
{
    const QPointer<ZSliderThumb> self(this);
    const auto restore = [this](bool isCheckable, bool isChecked) {
        const QSignalBlocker silence(this);
        setCheckable(isCheckable);
        setChecked(isChecked);
    };
    const bool wasCheckable = isCheckable();
    const bool wasChecked = isChecked();
    setUpdatesEnabled(false);
    restore(false, false);
    (this->*handler)(event);
    if (!self)
        return false;
    restore(wasCheckable, wasChecked);
    setUpdatesEnabled(true);
    // If a slot selected another thumb meanwhile, this one was not seen as checked.
    if (wasChecked && !host->isSelected(*this))
        check(false);
    return !self.isNull();
}

void ZSliderThumb::pressButton(QMouseEvent* event)
{
    QToolButton::mousePressEvent(event);
}

void ZSliderThumb::releaseButton(QMouseEvent* event)
{
    QToolButton::mouseReleaseEvent(event);
}

void ZSliderThumb::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        armed = draggable;
        pressPosition = event->pos();
    }
    if (!handleUnchecked(&ZSliderThumb::pressButton, event))
        event->accept();
}

void ZSliderThumb::mouseMoveEvent(QMouseEvent* event)
{
    if (!armed) {
        event->ignore();
        return;
    }
    event->accept();
    // Window systems send moves to the same position, which do not start a drag.
    if (!dragging && event->pos() == pressPosition)
        return;
    const QPointer<ZSliderThumb> self(this);
    if (!dragging) {
        dragging = true;
        Q_EMIT dragStarted();
        if (!self || !dragging)
            return;
    }
    const int offset = ClampToWidgetSize(currentPointOffset);
    const QPoint pointer = mapToParent(event->pos());
    setValue(host->valueForDrag(*this, pointer + QPoint(offset, offset) - pressPosition));
    if (!self)
        return;
    host->pointerMoved(pointer);
    QAbstractButton::mouseMoveEvent(event);
    event->accept();
}

void ZSliderThumb::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QToolButton::mouseReleaseEvent(event);
        return;
    }
    const QPointer<ZSliderThumb> self(this);
    const QPoint place = mapToParent(event->pos());
    // Not a click if the thumb was hidden or disabled since the press.
    const bool isClick = !dragging && pressPosition != NOWHERE;
    pressPosition = NOWHERE;
    const bool isAlive = handleUnchecked(&ZSliderThumb::releaseButton, event);
    // Accepted before a slot may delete the receiver, which Qt uses to propagate ignored events.
    event->accept();
    if (!isAlive)
        return;
    finishDrag();
    if (!self || !isClick)
        return;
    nextCheckState();
    if (self && !isChecked() && host->hasOtherThumbAt(place, *this))
        lower();
}

void ZSliderThumb::keyPressEvent(QKeyEvent* event)
{
    if (host->moveFocus(*event, this))
        return;
    const bool isStepped = isSignalConnected(QMetaMethod::fromSignal(&ZSliderThumb::stepped));
    const QPointer<ZSliderThumb> self(this);
    const bool isHandled = keyStepping && !isStepped && host->stepDefaultThumb(*this, *event);
    if (isHandled && (!self || event->isAccepted()))
        return;
    const bool isStep = keyStepping && (IsUpwards(event->key()) || IsDownwards(event->key()));
    if (!isStep) {
        QAbstractButton::keyPressEvent(event);
        return;
    }
    event->accept();
    Q_EMIT stepped(IsUpwards(event->key()) ? STEP : -STEP);
}

void ZSliderThumb::wheelEvent(QWheelEvent* event)
{
    const QPoint angle = event->angleDelta();
    const int delta = angle.y() != 0 ? angle.y() : angle.x();
    if (!isChecked() || !wheelStepping || delta == 0) {
        QToolButton::wheelEvent(event);
        return;
    }
    event->accept();
    Q_EMIT stepped(delta);
}

void ZSliderThumb::focusInEvent(QFocusEvent* event)
{
    // It may be covered by other thumbs.
    raise();
    QToolButton::focusInEvent(event);
}

void ZSliderThumb::focusOutEvent(QFocusEvent* event)
{
    host->restack();
    QToolButton::focusOutEvent(event);
}

void ZSliderThumb::hideEvent(QHideEvent* event)
{
    QToolButton::hideEvent(event);
    finishDrag();
}

void ZSliderThumb::changeEvent(QEvent* event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        finishDrag();
}

void ZSliderThumb::paintEvent(QPaintEvent*)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    // The slider paints no focus mark; the thumb that its keys act on does.
    if (host->sendsKeysTo(*this))
        option.state |= QStyle::State_HasFocus;
    QStylePainter(this).drawComplexControl(QStyle::CC_ToolButton, option);
}
