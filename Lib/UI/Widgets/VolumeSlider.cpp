#include <UI/Widgets/VolumeSlider.h>

#include <UI/Common/ClampToWidgetSize.h>
#include <UI/Common/LogSource.h>
#include <UI/Common/PlainLook.h>
#include <UI/Widgets/LevelMeterGeometry.h>

#include <QLinearGradient>
#include <QPainter>
#include <QTimer>
#include <QToolTip>

#include <cmath>

namespace Zelkor::Vx {

namespace {

const UI::Common::LogSource LOG_SOURCE("Lib/UI/Widgets/VolumeSlider");

constexpr int MAXIMUM = 100;
constexpr int TOOL_TIP_TIME_MS = 1000;
// Ignores volumes that differ from the value by rounding.
constexpr int IGNORED_STEP = 1;

// Adds the offsets of the meter to the thickness, unless a style sheet sets it.
QSize WithMeter(const QSlider& slider, const QSize& hint, int offsetX, int offsetY)
{
    if (UI::Common::HasStyleSheet(slider))
        return hint;
    const bool isVertical = slider.orientation() == Qt::Vertical;
    const int offset = qMax(0, UI::Common::ClampToWidgetSize(isVertical ? offsetX : offsetY));
    return hint + (isVertical ? QSize(2 * offset, 0) : QSize(0, 2 * offset));
}

} // namespace

VolumeSlider::VolumeSlider(QWidget* parent) : VolumeSlider(Qt::Vertical, parent) {}

VolumeSlider::VolumeSlider(Qt::Orientation orientation, QWidget* parent) : QSlider(orientation, parent)
{
    setRange(0, MAXIMUM);
    connect(this, &QAbstractSlider::valueChanged, this, [this](int value) {
        ShowValue(value);
        Q_EMIT VolumeChanged(value);
    });
}

VolumeSlider::~VolumeSlider() = default;

void VolumeSlider::SetVolumes(float newVolume, float newLevel)
{
    if (newVolume < 0) {
        LOG_SOURCE.Verbose(20, 75, "Zelkor::Vx::VolumeSlider::SetVolumes", "Input volume below 0");
        newVolume = 0;
    }
    const auto barsOf = [this](float ofVolume, float ofLevel) {
        return LevelMeterGeometry::ComputeBars({size(), peakValueRectOffsetX, peakValueRectOffsetY, ofVolume, ofLevel});
    };
    const LevelMeterGeometry::Bars before = barsOf(volume, level);
    volume = newVolume;
    level = newLevel;
    if (std::isfinite(volume)) {
        // The bound keeps the conversion defined; the slider clamps to its range.
        const int wanted = int(std::fmin(volume * float(MAXIMUM), 1e6F));
        if (qAbs(value() - wanted) > IGNORED_STEP)
            setValue(wanted);
    }
    const QRect dirty = LevelMeterGeometry::DirtyRect(before, barsOf(volume, level), borderRadius);
    if (!dirty.isEmpty())
        update(dirty);
}

QSize VolumeSlider::sizeHint() const
{
    return WithMeter(*this, QSlider::sizeHint(), peakValueRectOffsetX, peakValueRectOffsetY);
}

QSize VolumeSlider::minimumSizeHint() const
{
    return WithMeter(*this, QSlider::minimumSizeHint(), peakValueRectOffsetX, peakValueRectOffsetY);
}

void VolumeSlider::HideToolTip()
{
    QToolTip::hideText();
}

void VolumeSlider::ShowValue(int value)
{
    if (!isVisible())
        return;
    const QPoint anchor =
        mapToGlobal(QPoint(width() / 2 - UI::Common::ClampToWidgetSize(tooltipOffsetX), height() / 2));
    QToolTip::showText(anchor, QString::number(value) + tr(" %"), nullptr);
    QTimer::singleShot(TOOL_TIP_TIME_MS, this, &VolumeSlider::HideToolTip);
}

void VolumeSlider::paintEvent(QPaintEvent* event)
{
    const LevelMeterGeometry::Bars bars =
        LevelMeterGeometry::ComputeBars({size(), peakValueRectOffsetX, peakValueRectOffsetY, volume, level});
    const auto pick = [this](const QColor& enabled, const QColor& disabled) {
        return isEnabled() ? enabled : disabled;
    };
    QLinearGradient gradient(bars.background.topLeft(), bars.background.bottomRight());
    gradient.setColorAt(0, pick(colorPeakValueGradientFrom, colorPeakValueGradientDisableFrom));
    gradient.setColorAt(1, pick(colorPeakValueGradientTo, colorPeakValueGradientDisableTo));

    // Scoped, since QSlider::paintEvent() creates another painter.
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(colorPeakValueBorder);
        const auto draw = [&](const QRect& bar, const QBrush& brush) {
            painter.setBrush(brush);
            painter.drawRoundedRect(bar, borderRadius, borderRadius);
        };
        draw(bars.background, pick(colorBackground, colorBackgroundDisable));
        draw(bars.level, pick(colorPeakValue, colorPeakValueDisable));
        draw(bars.volume, gradient);
    }
    QSlider::paintEvent(event);
}

} // namespace Zelkor::Vx
