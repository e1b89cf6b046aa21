#include <UI/Widgets/TickSlider.h>

#include <QPointer>
#include <QStyle>
#include <QStyleOptionSlider>

namespace Zelkor::Vx {

TickSlider::TickSlider(std::function<void(int)> listener, QWidget* parent)
    : QSlider(Qt::Horizontal, parent), listener(std::move(listener))
{
    connect(this, &QSlider::valueChanged, this, [this] {
        if (!pressing)
            CallListener();
    });
}

void TickSlider::CallListener()
{
    const auto copy = listener; // the call may delete the slider
    copy(value());
}

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
    const QPointer<TickSlider> self(this);
    pressing = true;
    QSlider::mousePressEvent(event);
    if (!self)
        return;
    pressing = false;
    if (value() != before)
        CallListener();
}

} // namespace Zelkor::Vx
