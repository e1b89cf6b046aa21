#include <UI/Widgets/LevelMeterGeometry.h>

#include <UI/Common/ClampToWidgetSize.h>

#include <cmath>

namespace Zelkor::Vx::LevelMeterGeometry {

namespace {

using UI::Common::ClampToWidgetSize;

// Pixels by which the outline and its antialiasing extend beyond a bar.
constexpr int OUTLINE = 2;

// Returns a bar of the given share of the background, plus a row and a half, so that silence is visible as well. The
// bar may exceed the top of the background by the upper inset.
QRect ComputeBar(const QRect& background, float share, const Input& input)
{
    const double wanted = double(float(background.bottom() - background.top()) * share) + 1.5;
    const double highest = double(input.size.height() - ClampToWidgetSize(input.offsetY));
    // NaN shows an empty bar.
    const double rows = std::isnan(wanted) ? 0.0 : std::fmax(std::fmin(wanted, highest), 0.0);
    QRect bar = background;
    bar.setTop(int(background.bottom() - rows));
    return bar;
}

QRect DirtyRectOf(const QRect& before, const QRect& after, int radius)
{
    if (before == after)
        return QRect();
    const int corners = ClampToWidgetSize(qMax(0, radius)) + OUTLINE;
    // A bar lower than two corners shrinks all of them.
    if (qMin(before.height(), after.height()) <= 2 * corners)
        return (before | after).adjusted(-OUTLINE, -OUTLINE, OUTLINE, OUTLINE);
    QRect rows = after.adjusted(-OUTLINE, 0, OUTLINE, 0);
    rows.setTop(qMin(before.top(), after.top()) - OUTLINE);
    rows.setBottom(qMax(before.top(), after.top()) + corners);
    return rows;
}

} // namespace

Bars ComputeBars(const Input& input)
{
    Bars bars;
    const int x = ClampToWidgetSize(input.offsetX);
    const int y = ClampToWidgetSize(input.offsetY);
    bars.background = QRect(x, y, input.size.width() - 2 * x, input.size.height() - 2 * y);
    bars.level = ComputeBar(bars.background, input.level, input);
    bars.volume = ComputeBar(bars.background, input.volume * input.level, input);
    return bars;
}

QRect DirtyRect(const Bars& before, const Bars& after, int radius)
{
    return DirtyRectOf(before.level, after.level, radius) | DirtyRectOf(before.volume, after.volume, radius);
}

} // namespace Zelkor::Vx::LevelMeterGeometry
