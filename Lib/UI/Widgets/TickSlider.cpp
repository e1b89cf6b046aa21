#include <UI/Widgets/TickSlider.h>

#include <QPointer>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSlider>

namespace Zelkor::Vx {

int TickSlider::HandleX(int value, int width) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.rect.setWidth(width);
    option.sliderPosition = value;
    option.sliderValue = value;
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const int middle = handle.x() + handle.width() / 2;
    return isRightToLeft() ? width - middle : middle;
}

void TickSlider::mousePressEvent(QMouseEvent* event)
{
    const int before = value();
    const bool wasDown = isSliderDown();
    {
        // A press beside the handle is not over for a slider when it tells the new value. So that comes after it.
        const QSignalBlocker blocker(this);
        QSlider::mousePressEvent(event);
    }
    const QPointer<TickSlider> self(this);
    if (value() != before)
        Q_EMIT valueChanged(value());
    if (self && isSliderDown() && !wasDown)
        Q_EMIT sliderPressed();
}

} // namespace Zelkor::Vx
