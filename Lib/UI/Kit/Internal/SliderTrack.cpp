#include <UI/Kit/Internal/SliderTrack.h>

#include <UI/Common/ClampToWidgetSize.h>

#include <QtGlobal>

namespace Zelkor::Vx::UI::Kit {

namespace {

using Common::ClampToWidgetSize;

// Positions are clamped to this before the conversion to int.
constexpr double FARTHEST = 1 << 24;

double Span(const SliderTrack& track)
{
    const double span = double(track.maximum) - track.minimum;
    return span == 0 ? 1 : span;
}

double GrooveLength(const SliderTrack& track)
{
    return track.extent - 2.0 * track.inset;
}

} // namespace

int SliderTrack::pixelOfThumb(int value) const
{
    const double position = GrooveLength(*this) * value / Span(*this) + 0.5;
    return int(qBound(-FARTHEST, position, FARTHEST)) + ClampToWidgetSize(inset);
}

int SliderTrack::pixelOfSegment(int value) const
{
    const double position = (double(value) - minimum) * GrooveLength(*this) / Span(*this);
    return int(qBound(-FARTHEST, position, FARTHEST)) + ClampToWidgetSize(inset);
}

int SliderTrack::valueAt(int pixel) const
{
    const double length = qMax(GrooveLength(*this), 1.0);
    const double offset = qBound(0.0, double(pixel) - inset, length);
    return int(minimum + (double(maximum) - minimum) * offset / length);
}

} // namespace Zelkor::Vx::UI::Kit
