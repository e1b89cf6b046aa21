#pragma once

#include <UI/Common/Export.h>

#include <QColor>
#include <QSlider>

namespace Zelkor::Vx {

/// A slider for a recording volume, 0 to 100 per cent, with a live meter of the input level behind its handle.
///
/// The meter has three rounded rectangles, one over the other: a background, the input level, and that level times the
/// volume in a gradient. The bars grow from the bottom, whatever the orientation. The meter keeps what it was given
/// last: decay and peak hold are the caller's business. While the value changes, a tool tip shows it for a second.
/// Groove and handle come from the style sheet. Setting a property repaints the slider. GUI thread only.
class VX_WIDGETS_EXPORT VolumeSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(QColor colorPeakValueBorder MEMBER colorPeakValueBorder)
    Q_PROPERTY(QColor colorBackground MEMBER colorBackground)
    Q_PROPERTY(QColor colorPeakValue MEMBER colorPeakValue)
    Q_PROPERTY(QColor colorPeakValueGradientFrom MEMBER colorPeakValueGradientFrom)
    Q_PROPERTY(QColor colorPeakValueGradientTo MEMBER colorPeakValueGradientTo)
    Q_PROPERTY(QColor colorBackgroundDisable MEMBER colorBackgroundDisable)
    Q_PROPERTY(QColor colorPeakValueDisable MEMBER colorPeakValueDisable)
    Q_PROPERTY(QColor colorPeakValueGradientDisableFrom MEMBER colorPeakValueGradientDisableFrom)
    Q_PROPERTY(QColor colorPeakValueGradientDisableTo MEMBER colorPeakValueGradientDisableTo)
    Q_PROPERTY(int tooltipOffsetX MEMBER tooltipOffsetX)
    Q_PROPERTY(int peakValueRectOffsetX MEMBER peakValueRectOffsetX)
    Q_PROPERTY(int peakValueRectOffsetY MEMBER peakValueRectOffsetY)
    Q_PROPERTY(int borderRadius MEMBER borderRadius)

public:
    /// Vertical.
    explicit VolumeSlider(QWidget* parent);
    VolumeSlider(Qt::Orientation orientation, QWidget* parent);
    ~VolumeSlider() override;

    /// Shows a volume and an input level, both 0 to 1. The handle follows the volume when they are more than one step
    /// apart. A negative volume counts as 0, with a verbose log line; what is not finite moves nothing. Call it as
    /// often as levels come: only what changes on the screen is painted.
    void SetVolumes(float newVolume, float newLevel);

public Q_SLOTS:
    void HideToolTip();

Q_SIGNALS:
    /// The slider has another value, by a person or by the application. Like all sliders of Qt it is not done yet when
    /// it tells that: a slot that wants it gone calls deleteLater().
    void VolumeChanged(int value);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// The value of a property; repaints the slider when it changes.
    template<class Value>
    class Q_DECL_HIDDEN Look
    {
    public:
        Look(VolumeSlider* slider, const Value& value) : slider(slider), value(value) {}

        operator const Value&() const { return value; }
        bool operator!=(const Value& other) const { return value != other; }
        Look& operator=(const Value& newValue)
        {
            value = newValue;
            slider->update();
            return *this;
        }

    private:
        VolumeSlider* slider;
        Value value;
    };

    void ShowValue(int value);

    Look<QColor> colorPeakValueBorder{this, Qt::transparent};
    Look<QColor> colorBackground{this, {28, 32, 43}};
    Look<QColor> colorPeakValue{this, {86, 91, 107}};
    Look<QColor> colorPeakValueGradientFrom{this, {37, 127, 101}};
    Look<QColor> colorPeakValueGradientTo{this, {37, 127, 101}};
    Look<QColor> colorBackgroundDisable{this, {39, 45, 58}};
    Look<QColor> colorPeakValueDisable{this, {68, 74, 90}};
    Look<QColor> colorPeakValueGradientDisableFrom{this, {43, 92, 87}};
    Look<QColor> colorPeakValueGradientDisableTo{this, {43, 92, 87}};
    Look<int> tooltipOffsetX{this, 5};
    Look<int> peakValueRectOffsetX{this, 5};
    Look<int> peakValueRectOffsetY{this, 4};
    Look<int> borderRadius{this, 0};
    float volume = 0;
    float level = 0;
};

} // namespace Zelkor::Vx
