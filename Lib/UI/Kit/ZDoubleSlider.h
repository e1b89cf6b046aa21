#pragma once

#include <UI/Kit/ZCustomSlider.h>

/// A slider for a floating-point value: its integer position times a multiplier.
///
/// Range and steps are those of the position. Assistive technology gets the floating-point value.
class ZDoubleSlider : public ZCustomSlider
{
    Q_OBJECT
    Q_PROPERTY(double multiplier READ multiplier WRITE setMultiplier)

public:
    explicit ZDoubleSlider(QWidget* parent = nullptr);

    /// Returns the position times the multiplier.
    double doubleValue() const { return value() * factor; }

    /// Value of one step of the position; 1 by default.
    double multiplier() const { return factor; }

    /// Emits `doubleValueChanged` in any case. Ignores multipliers that are not finite or not greater than 1e-12 in
    /// magnitude, by which no value could be converted to a position.
    void setMultiplier(double multiplier);

public Q_SLOTS:
    /// Sets the position to `value / multiplier()`, clamped to the range. Positive positions are rounded to the
    /// nearest, half up; negative ones towards zero. Ignores NaN.
    void setDoubleValue(double value);

Q_SIGNALS:
    /// Emitted with `valueChanged` and when the multiplier is set. As with any slider of Qt, a slot must use
    /// deleteLater() to delete it.
    void doubleValueChanged(double value);

private:
    double factor = 1.0;
};
