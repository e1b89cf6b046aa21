#pragma once

#include <UI/Kit/ZCustomSlider.h>

/// A slider for a floating-point value: its integer position times a multiplier.
///
/// Range and steps are those of the position. Assistive technology is told the floating-point value.
class ZDoubleSlider : public ZCustomSlider
{
    Q_OBJECT
    Q_PROPERTY(double multiplier READ multiplier WRITE setMultiplier)

public:
    explicit ZDoubleSlider(QWidget* parent = nullptr);

    /// The position times the multiplier.
    double doubleValue() const { return value() * factor; }

    /// What one step of the position is worth; 1 by default.
    double multiplier() const { return factor; }

    /// Emits `doubleValueChanged`, also when the value stays. Ignored is a multiplier that is no finite number or not
    /// farther from zero than 1e-12: it could never lead back to a position.
    void setMultiplier(double multiplier);

public Q_SLOTS:
    /// Moves to the position nearest to `value / multiplier()`, a half going up, within the range. Below zero the
    /// position is rounded towards zero. What is not a number is ignored.
    void setDoubleValue(double value);

Q_SIGNALS:
    /// Comes with every `valueChanged`, and when the multiplier is set. Like all sliders of Qt it is not done yet when
    /// it tells that: a slot that wants it gone calls deleteLater().
    void doubleValueChanged(double value);

private:
    double factor = 1.0;
};
