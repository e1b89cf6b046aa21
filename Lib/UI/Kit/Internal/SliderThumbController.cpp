#include <UI/Kit/Internal/SliderThumbController.h>

#include <UI/Kit/ZSliderThumb.h>

#include <QKeyEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QSlider>
#include <QVector>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Zelkor::Vx::UI::Kit {

void SliderThumbController::insert(const QString& name, ZSliderThumb* thumb)
{
    thumb->key = name;
    // After the last thumb: after the slider, Qt would search all children.
    QWidget::setTabOrder(byName.isEmpty() ? static_cast<QWidget*>(&slider) : byName.last(), thumb);
    byName.insert(name, thumb);
    setZOrder(*thumb, thumb->zOrder());
}

void SliderThumbController::setDefaultThumb(ZSliderThumb* thumb)
{
    valueThumb = thumb;
    thumb->setValue(slider.value());
}

void SliderThumbController::forget(ZSliderThumb* thumb)
{
    const bool isDragged = thumb->dragging || (draggingFromGroove && grooveThumb() == thumb);
    if (byName.value(thumb->key) == thumb) {
        byName.remove(thumb->key);
        stacking.remove({thumb->currentZOrder, thumb->key});
    }
    if (valueThumb == thumb)
        valueThumb = nullptr;
    if (selected == thumb)
        selected = valueThumb;
    slider.updateGeometry();
    if (!isDragged)
        return;
    draggingFromGroove = false;
    slider.setSliderDown(false);
}

void SliderThumbController::select(ZSliderThumb* thumb)
{
    if (!thumb && selected)
        selected->check(false);
    else if (thumb && thumb->slider == &slider)
        thumb->check(true);
}

void SliderThumbController::handleToggled(ZSliderThumb* thumb, bool on)
{
    slider.update(); // the focus mark moves to another thumb
    if (!on) {
        // Another thumb may be selected already, which is why this one was unchecked.
        if (selected == thumb)
            selected = valueThumb;
        return;
    }
    selected = thumb;
    QVector<QPointer<ZSliderThumb>> others;
    for (ZSliderThumb* other : std::as_const(byName))
        others.append(other);
    const QPointer<QSlider> guard(&slider);
    for (const QPointer<ZSliderThumb>& other : std::as_const(others)) {
        if (guard && other && other != selected)
            other->check(false);
    }
}

int SliderThumbController::boundedByDefaultThumb(int value) const
{
    return valueThumb ? valueThumb->bounded(value) : value;
}

// Slider and default thumb follow each other, so the follower is not followed. A slot that moves either of them during
// the synchronisation leads to another round.
void SliderThumbController::synchronise(Follower follower, int value)
{
    if (!valueThumb)
        return;
    if (synchronising) {
        pending = valueThumb->value() == valueThumb->bounded(slider.value()) ? Follower::NONE : follower;
        return;
    }
    const QPointer<QSlider> guard(&slider);
    synchronising = true;
    while (valueThumb && follower != Follower::NONE) {
        pending = Follower::NONE;
        if (follower == Follower::THUMB)
            valueThumb->setValue(value);
        else
            slider.setValue(value);
        if (!guard)
            return;
        follower = pending;
        value = follower == Follower::THUMB || !valueThumb ? slider.value() : valueThumb->value();
    }
    synchronising = false;
}

void SliderThumbController::updateThumbs()
{
    for (ZSliderThumb* thumb : std::as_const(byName)) {
        const QSignalBlocker blocker(thumb);
        thumb->setValue(thumb->value());
    }
}

void SliderThumbController::setZOrder(ZSliderThumb& thumb, int order)
{
    const int before = std::exchange(thumb.currentZOrder, order);
    if (byName.value(thumb.key) != &thumb)
        return;
    stacking.remove({before, thumb.key});
    const auto above = stacking.upperBound({order, thumb.key});
    if (above == stacking.end())
        thumb.raise();
    else
        thumb.stackUnder(*above);
    stacking.insert({order, thumb.key}, &thumb);
}

void SliderThumbController::restack()
{
    for (ZSliderThumb* thumb : std::as_const(stacking))
        thumb->raise();
}

int SliderThumbController::valueAt(const QPoint& point) const
{
    return track().valueAt(slider.orientation() == Qt::Horizontal ? point.x() : point.y());
}

int SliderThumbController::valueForDrag(const ZSliderThumb& thumb, const QPoint& point) const
{
    const int value = valueAt(point);
    if (!snapping || !valueThumb || &thumb == valueThumb)
        return value;
    const qint64 distance = qAbs(qint64(valueThumb->value()) - value);
    return distance < qint64(slider.maximum()) * snapThousandths / 1000 ? valueThumb->value() : value;
}

bool SliderThumbController::hasOtherThumbAt(const QPoint& point, const ZSliderThumb& thumb) const
{
    return std::any_of(byName.begin(), byName.end(), [&](const ZSliderThumb* other) {
        return other != &thumb && other->isVisible() && other->geometry().contains(point);
    });
}

ZSliderThumb* SliderThumbController::grooveThumb() const
{
    if (selected && selected->movesOnGrooveClick())
        return selected;
    return valueThumb && valueThumb->movesOnGrooveClick() ? valueThumb : nullptr;
}

void SliderThumbController::startGrooveDrag(const QPoint& point)
{
    const QPointer<QSlider> guard(&slider);
    slider.setSliderDown(true);
    if (!guard)
        return;
    ZSliderThumb* thumb = grooveThumb();
    if (!thumb) {
        slider.setSliderDown(false);
        return;
    }
    draggingFromGroove = true;
    thumb->setValue(valueAt(point));
}

void SliderThumbController::continueGrooveDrag(const QPoint& point)
{
    ZSliderThumb* thumb = draggingFromGroove ? grooveThumb() : nullptr;
    if (thumb)
        thumb->setValue(valueAt(point));
}

void SliderThumbController::finishGrooveDrag()
{
    if (!draggingFromGroove)
        return;
    draggingFromGroove = false;
    slider.setSliderDown(false);
}

bool SliderThumbController::sendsKeysTo(const ZSliderThumb& thumb) const
{
    return slider.hasFocus() && keyThumb() == &thumb;
}

bool SliderThumbController::moveFocus(QKeyEvent& event, ZSliderThumb* from)
{
    const bool isBack = event.key() == Qt::Key_Left || event.key() == Qt::Key_Down;
    const bool isForth = event.key() == Qt::Key_Right || event.key() == Qt::Key_Up;
    if (!event.modifiers().testFlag(Qt::ControlModifier) || (!isBack && !isForth))
        return false;
    event.accept();
    QVector<ZSliderThumb*> reachable;
    std::copy_if(byName.begin(), byName.end(), std::back_inserter(reachable),
                 [](const ZSliderThumb* thumb) { return thumb->isVisible() && thumb->isEnabled(); });
    std::stable_sort(reachable.begin(), reachable.end(),
                     [](const ZSliderThumb* a, const ZSliderThumb* b) { return a->value() < b->value(); });
    const int next = reachable.indexOf(from) + (isForth ? 1 : -1);
    if (next >= 0 && next < reachable.size())
        reachable[next]->setFocus(Qt::TabFocusReason);
    return true;
}

bool SliderThumbController::stepDefaultThumb(const ZSliderThumb& thumb, QKeyEvent& event)
{
    if (&thumb != valueThumb)
        return false;
    stepSlider(event);
    return true;
}

void SliderThumbController::pressKey(QKeyEvent& event)
{
    if (moveFocus(event, keyThumb()))
        return;
    if (!selected)
        stepSlider(event);
    // The slider gets the release of these keys too, so the thumb would remain down.
    else if (event.key() != Qt::Key_Space && event.key() != Qt::Key_Select)
        selected->keyPressEvent(&event);
    else if (!event.isAutoRepeat())
        selected->click();
}

void SliderThumbController::turnWheel(QWheelEvent& event)
{
    if (selected)
        selected->wheelEvent(&event);
    else
        event.ignore();
}

} // namespace Zelkor::Vx::UI::Kit
