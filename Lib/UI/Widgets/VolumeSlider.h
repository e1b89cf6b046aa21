#pragma once

#include <UI/Common/Export.h>

#include <QColor>
#include <QSlider>

namespace Zelkor::Vx {

/// A slider for a recording volume, 0 to 100 per cent, with a live meter of the input level behind its handle.
///
/// The meter draws three rounded rectangles on top of each other: a background, the input level, and the product of
/// level and volume in a gradient. The bars grow from the bottom in both orientations. The meter shows the last level;
/// the caller implements decay and peak hold. A tool tip shows a changed value for one second. Groove and handle come
/// from the style sheet. Changing a property repaints the slider. GUI thread only.
class VX_WIDGETS_EXPORT VolumeSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(QColor colorPeakValueBorder MEMBER colorPeakValueBorder)
    ///< outline of the three bars; default transparent
    Q_PROPERTY(QColor colorBackground MEMBER colorBackground)
    ///< background of the meter; default rgb(28, 32, 43)
    Q_PROPERTY(QColor colorPeakValue MEMBER colorPeakValue)
    ///< bar of the input level; default rgb(86, 91, 107)
    Q_PROPERTY(QColor colorPeakValueGradientFrom MEMBER colorPeakValueGradientFrom)
    ///< bar of level times volume, top left; default rgb(37, 127, 101)
    Q_PROPERTY(QColor colorPeakValueGradientTo MEMBER colorPeakValueGradientTo)
    ///< bar of level times volume, bottom right; default rgb(37, 127, 101)
    Q_PROPERTY(QColor colorBackgroundDisable MEMBER colorBackgroundDisable)
    ///< background of a disabled meter; default rgb(39, 45, 58)
    Q_PROPERTY(QColor colorPeakValueDisable MEMBER colorPeakValueDisable)
    ///< bar of the input level, disabled; default rgb(68, 74, 90)
    Q_PROPERTY(QColor colorPeakValueGradientDisableFrom MEMBER colorPeakValueGradientDisableFrom)
    ///< bar of level times volume, disabled, top left; default rgb(43, 92, 87)
    Q_PROPERTY(QColor colorPeakValueGradientDisableTo MEMBER colorPeakValueGradientDisableTo)
    ///< bar of level times volume, disabled, bottom right; default rgb(43, 92, 87)
    Q_PROPERTY(int tooltipOffsetX MEMBER tooltipOffsetX)
    ///< pixels by which the tool tip moves left from the centre of the slider; default 5
    Q_PROPERTY(int peakValueRectOffsetX MEMBER peakValueRectOffsetX)
    ///< pixels between the meter and the left and right edges; default 5
    Q_PROPERTY(int peakValueRectOffsetY MEMBER peakValueRectOffsetY)
    ///< pixels between the meter and the top and bottom edges; default 4
    Q_PROPERTY(int borderRadius MEMBER borderRadius)
    ///< corner radius of the bars in pixels; default 0

public:
    /// Creates a vertical slider.
    explicit VolumeSlider(QWidget* parent);
    VolumeSlider(Qt::Orientation orientation, QWidget* parent);
    ~VolumeSlider() override;

    /// Sets volume and input level, both 0 to 1, and repaints only the changed rows. The value follows the volume if
    /// they differ by more than one step, and emits `VolumeChanged`. A negative volume counts as 0, with a verbose log
    /// line; NaN and infinity leave the value unchanged.
    void SetVolumes(float newVolume, float newLevel);

    /// Without a style sheet, wide enough for the meter to show on both sides of the groove.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Hides the tool tip of the application.
    void HideToolTip();

Q_SIGNALS:
    /// Emitted when the user or the application changes the value. As with any `QSlider`, a slot must not delete the
    /// sender; it may call `deleteLater()`.
    void VolumeChanged(int value);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// The value of a property that repaints the slider when it changes.
    template<class Value>
    class Q_DECL_HIDDEN PaintedValue
    {
    public:
        PaintedValue(VolumeSlider* slider, const Value& value) : slider(slider), value(value) {}

        operator const Value&() const { return value; }
        bool operator!=(const Value& other) const { return value != other; }
        PaintedValue& operator=(const Value& newValue)
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

    PaintedValue<QColor> colorPeakValueBorder{this, Qt::transparent};
    PaintedValue<QColor> colorBackground{this, {28, 32, 43}};
    PaintedValue<QColor> colorPeakValue{this, {86, 91, 107}};
    PaintedValue<QColor> colorPeakValueGradientFrom{this, {37, 127, 101}};
    PaintedValue<QColor> colorPeakValueGradientTo{this, {37, 127, 101}};
    PaintedValue<QColor> colorBackgroundDisable{this, {39, 45, 58}};
    PaintedValue<QColor> colorPeakValueDisable{this, {68, 74, 90}};
    PaintedValue<QColor> colorPeakValueGradientDisableFrom{this, {43, 92, 87}};
    PaintedValue<QColor> colorPeakValueGradientDisableTo{this, {43, 92, 87}};
    PaintedValue<int> tooltipOffsetX{this, 5};
    PaintedValue<int> peakValueRectOffsetX{this, 5};
    PaintedValue<int> peakValueRectOffsetY{this, 4};
    PaintedValue<int> borderRadius{this, 0};
    float volume = 0;
    float level = 0;
};

} // namespace Zelkor::Vx
