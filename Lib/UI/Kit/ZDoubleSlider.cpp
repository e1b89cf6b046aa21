#include <UI/Kit/ZDoubleSlider.h>

#include <UI/Common/AccessibleFactory.h>

#include <QAccessibleWidget>

#include <algorithm>
#include <cmath>

using namespace Zelkor::Vx::UI;

namespace {

constexpr double SMALLEST_MULTIPLIER = 1e-12;

// The interface of QSlider reports the position.
class DoubleSliderInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit DoubleSliderInterface(ZDoubleSlider* slider) : QAccessibleWidget(slider, QAccessible::Slider) {}

private:
    const ZDoubleSlider& Slider() const { return *static_cast<const ZDoubleSlider*>(object()); }
    ZDoubleSlider& Slider() { return *static_cast<ZDoubleSlider*>(object()); }
    std::pair<double, double> Ends() const
    {
        return std::minmax({Slider().minimum() * Slider().multiplier(), Slider().maximum() * Slider().multiplier()});
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return Slider().doubleValue(); }
    // setDoubleValue() rounds negative values towards zero and cannot reach a negative minimum.
    void setCurrentValue(const QVariant& value) override
    {
        const double position = std::round(value.toDouble() / Slider().multiplier());
        if (!std::isnan(position))
            Slider().setValue(int(std::clamp(position, double(Slider().minimum()), double(Slider().maximum()))));
    }
    QVariant minimumValue() const override { return Ends().first; }
    QVariant maximumValue() const override { return Ends().second; }
    QVariant minimumStepSize() const override { return std::abs(Slider().singleStep() * Slider().multiplier()); }
};

} // namespace

ZDoubleSlider::ZDoubleSlider(QWidget* parent) : ZCustomSlider(parent)
{
    Common::AccessibleFactory<ZDoubleSlider, DoubleSliderInterface>::Install();
    connect(this, &QSlider::valueChanged, this, [this] { Q_EMIT doubleValueChanged(doubleValue()); });
}

void ZDoubleSlider::setMultiplier(double multiplier)
{
    if (!std::isfinite(multiplier) || std::abs(multiplier) <= SMALLEST_MULTIPLIER)
        return;
    factor = multiplier;
    Q_EMIT doubleValueChanged(doubleValue());
}

void ZDoubleSlider::setDoubleValue(double value)
{
    const double position = value / factor + 0.5;
    if (std::isnan(position))
        return;
    // Clamped before the conversion, which is undefined beyond the range of int.
    setValue(int(std::clamp(position, double(minimum()), double(maximum()) + 0.5)));
}
