#include <UI/Kit/ZTimelineSlider.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/ClampToWidgetSize.h>
#include <UI/Kit/Internal/TimeFormat.h>
#include <UI/Kit/ZSliderThumb.h>

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPointer>
#include <QStyle>
#include <QTime>
#include <QToolTip>

#include <algorithm>
#include <limits>

// For compilers without 128-bit integers.
#if !defined(__SIZEOF_INT128__)
#include <boost/multiprecision/cpp_int.hpp>
#endif

namespace {

using namespace Zelkor::Vx::UI::Kit;
using Zelkor::Vx::UI::Common::ClampToWidgetSize;

constexpr int STEPS = 1000;
constexpr qint64 NO_BOUND = -1;
constexpr int SECONDS_A_DAY = 24 * 60 * 60;
constexpr qint64 MILLISECONDS_A_DAY = 1000 * qint64(SECONDS_A_DAY);

/// Wide enough for the product of any time and any value.
#if defined(__SIZEOF_INT128__)
__extension__ typedef __int128 Wide;
#else
using Wide = boost::multiprecision::int128_t;
#endif

template<class Integer>
Integer Saturated(Wide number)
{
    using Limits = std::numeric_limits<Integer>;
    return Integer(std::clamp(number, Wide(Limits::min()), Wide(Limits::max())));
}

/// Returns factor * part / whole + 1/2, truncated; 0 if `whole` is 0.
Wide Scaled(Wide factor, Wide part, Wide whole)
{
    return whole == 0 ? 0 : (2 * factor * part + whole) / (2 * whole);
}

QString DayTimeText(qint64 milliseconds, const ZTimelineSlider& slider)
{
    const QTime time = QTime(0, 0).addMSecs(int(milliseconds % MILLISECONDS_A_DAY));
    return TimeText(time, slider.displayFormatList(), slider.locale());
}

/// Reports times instead of values.
class AccessibleTimeline : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleTimeline(ZTimelineSlider* slider)
        : QAccessibleWidget(slider, QAccessible::Slider), slider(slider)
    {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? DayTimeText(slider->time(), *slider) : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return slider->time(); }
    void setCurrentValue(const QVariant& value) override { slider->setTime(value.toLongLong()); }
    QVariant minimumValue() const override { return end(slider->leftBound(), slider->minimum()); }
    QVariant maximumValue() const override { return end(slider->rightBound(), slider->maximum()); }
    QVariant minimumStepSize() const override
    {
        const int first = slider->minimum();
        const qint64 second = qMin<qint64>(qint64(first) + slider->singleStep(), slider->maximum());
        return Saturated<qint64>(Wide(slider->timeAt(int(second))) - slider->timeAt(first));
    }

private:
    qint64 end(qint64 bound, int value) const { return bound < 0 ? slider->timeAt(value) : bound; }

    ZTimelineSlider* slider;
};

} // namespace

/// The shown range of time.
struct ZTimelineSlider::Scale
{
    qint64 low;
    qint64 high;
    qint64 offset; ///< time of value 0

    Wide length() const { return Wide(high) - low; }
};

ZTimelineSlider::ZTimelineSlider(QWidget* parent) : ZSlider(parent)
{
    Zelkor::Vx::UI::Common::AccessibleFactory<ZTimelineSlider, AccessibleTimeline>::Install();
    connect(this, &QAbstractSlider::sliderMoved, this, &ZTimelineSlider::updateTime);
    connect(this, &QAbstractSlider::valueChanged, this, &ZTimelineSlider::updateTime);
    setRange(0, STEPS);
    setMouseTracking(true);
    connect(this, &QAbstractSlider::rangeChanged, this, &ZTimelineSlider::refit);
}

void ZTimelineSlider::setSpan(qint64 start, qint64 end)
{
    if (start == spanStart && end == spanEnd)
        return;
    spanStart = start;
    spanEnd = end;
    refit();
}

void ZTimelineSlider::setBounds(qint64 left, qint64 right)
{
    if (left == lowerBound && right == upperBound)
        return;
    lowerBound = left;
    upperBound = right;
    refit();
}

void ZTimelineSlider::resetBounds()
{
    setBounds(NO_BOUND, NO_BOUND);
}

void ZTimelineSlider::setBoundsIgnored(bool on)
{
    if (on == boundsIgnored)
        return;
    boundsIgnored = on;
    refit();
}

void ZTimelineSlider::setTime(qint64 milliseconds)
{
    setValue(valueOf(milliseconds));
}

void ZTimelineSlider::resetTime()
{
    const QSignalBlocker silence(this);
    setValue(0);
    currentTime = 0;
    // Otherwise updated by the blocked signal.
    if (ZSliderThumb* thumb = defaultThumb()) {
        const QSignalBlocker silentThumb(thumb);
        thumb->setValue(0);
    }
}

void ZTimelineSlider::setStyleTag(const QString& tag)
{
    if (tag == currentStyleTag)
        return;
    currentStyleTag = tag;
    style()->unpolish(this);
    style()->polish(this);
    update();
}

ZTimelineSlider::Scale ZTimelineSlider::scale() const
{
    const bool isBoundLeft = lowerBound >= 0 && !boundsIgnored;
    const bool isBoundRight = upperBound >= 0 && !boundsIgnored;
    return {isBoundLeft ? lowerBound : spanStart, isBoundRight ? upperBound : spanEnd, isBoundLeft ? lowerBound : 0};
}

int ZTimelineSlider::valueOf(qint64 milliseconds) const
{
    qint64 time = qBound(spanStart, milliseconds, spanEnd);
    if (lowerBound >= 0)
        time = qMax(time, lowerBound);
    if (upperBound >= 0)
        time = qMin(time, upperBound);
    const Scale shown = scale();
    return Saturated<int>(Scaled(Wide(maximum()) - minimum(), Wide(time) - shown.offset, shown.length()));
}

qint64 ZTimelineSlider::timeAt(int value) const
{
    const int inside = qBound(minimum(), value, maximum());
    if (const std::optional<qint64> bound = boundAt(inside))
        return *bound;
    const Scale shown = scale();
    return Saturated<qint64>(Scaled(shown.length(), inside, Wide(maximum()) - minimum()) + shown.offset);
}

// Returns the value at which a bound limits the default thumb.
std::optional<int> ZTimelineSlider::limitOf(qint64 bound) const
{
    if (bound < 0)
        return {};
    return qBound(minimum(), valueOf(bound), maximum());
}

std::optional<qint64> ZTimelineSlider::boundAt(int value) const
{
    for (const qint64 bound : {lowerBound, upperBound}) {
        if (limitOf(bound) == value)
            return bound;
    }
    return {};
}

void ZTimelineSlider::setThumbLimits(int lower, int upper)
{
    if (ZSliderThumb* thumb = defaultThumb())
        thumb->setLowerLimit(lower);
    // Looked up again, because a slot of valueChanged() may delete the thumb.
    if (ZSliderThumb* thumb = defaultThumb())
        thumb->setUpperLimit(upper);
}

// Updates value and limits after a change of the scale. The limits are set last, because until then they would clamp a
// value of the old scale.
void ZTimelineSlider::refit()
{
    const QPointer<ZTimelineSlider> self(this);
    setThumbLimits(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    setValue(valueOf(currentTime));
    if (!self)
        return;
    setThumbLimits(limitOf(lowerBound).value_or(minimum()), limitOf(upperBound).value_or(maximum()));
    // The bound may have changed while the thumb remains at its limit.
    if (self && boundAt(value()))
        updateTime(value());
}

void ZTimelineSlider::updateTime(int value)
{
    const qint64 newTime = timeAt(value);
    if (newTime == currentTime)
        return;
    currentTime = newTime;
    Q_EMIT timeChanged(newTime);
}

void ZTimelineSlider::pointerMoved(const QPoint& point)
{
    const int start = ClampToWidgetSize(grooveOffset());
    const int end = width() - start;
    double ratio = point.x() <= start ? 0 : 1;
    if (start < point.x() && point.x() < end)
        ratio = double(point.x() - start) / (end - start);
    const auto seconds = qint64(double(scale().length()) * ratio / 1000);
    const QTime shown = QTime(0, 0).addSecs(int(seconds % SECONDS_A_DAY));
    QToolTip::showText(mapToGlobal(point), TimeText(shown, formats, locale()), this, rect());
}

void ZTimelineSlider::mouseMoveEvent(QMouseEvent* event)
{
    pointerMoved(event->pos());
    ZSlider::mouseMoveEvent(event);
}
