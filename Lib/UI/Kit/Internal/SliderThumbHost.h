#pragma once

#include <UI/Kit/Internal/SliderTrack.h>

class QKeyEvent;
class QPoint;
class ZSliderThumb;

namespace Zelkor::Vx::UI::Kit {

/// What a ZSliderThumb asks of its slider. ZSlider creates thumbs; with this interface a thumb does not need ZSlider.
class SliderThumbHost
{
public:
    virtual ~SliderThumbHost() = default;

    /// Maps values to pixels along the slider.
    virtual SliderTrack track() const = 0;

    /// Returns the value for a thumb that is dragged to `point` of the slider, snapped to the default thumb.
    virtual int valueForDrag(const ZSliderThumb& thumb, const QPoint& point) const = 0;

    virtual bool isSelected(const ZSliderThumb& thumb) const = 0;

    /// Returns whether the slider has the focus and sends its keys to `thumb`.
    virtual bool sendsKeysTo(const ZSliderThumb& thumb) const = 0;

    /// Returns whether another visible thumb covers `point` of the slider.
    virtual bool hasOtherThumbAt(const QPoint& point, const ZSliderThumb& thumb) const = 0;

    /// Moves the focus to the next thumb when the key asks for that. Returns false for other keys.
    virtual bool moveFocus(QKeyEvent& event, ZSliderThumb* from) = 0;

    /// Steps the slider's value when `thumb` is the default thumb. Returns false for other thumbs.
    virtual bool stepDefaultThumb(const ZSliderThumb& thumb, QKeyEvent& event) = 0;

    /// Called after a drag moved a thumb, with the position of the mouse in the slider.
    virtual void pointerMoved(const QPoint& point) = 0;

    virtual void setZOrder(ZSliderThumb& thumb, int order) = 0;

    /// Restores the stacking order after a thumb was raised for the focus.
    virtual void restack() = 0;

    /// Called from the destructor of a thumb.
    virtual void forget(ZSliderThumb* thumb) = 0;
};

} // namespace Zelkor::Vx::UI::Kit
