#include <UI/Widgets/LevelMeterGeometry.h>

#include <UI/Common/ClampToWidgetSize.h>

#include <cmath>

namespace Zelkor::Vx::LevelMeterGeometry {

namespace {

using UI::Common::ClampToWidgetSize;

// The outline and its antialiasing reach so far beyond a bar.
constexpr int OUTLINE = 2;

// A bar of the given share of the background, and a row and a half more, so that silence shows as well. It may end
// above the background, but not below the lower inset.
QRect BarOf(const QRect& background, float share, const Input& input)
{
    const double wanted = double(float(background.bottom() - background.top()) * share) + 1.5;
    const double highest = double(input.size.height() - ClampToWidgetSize(input.offsetY));
    // What is not a number shows as silence without its row.
    const double rows = std::isnan(wanted) ? 0.0 : std::fmax(std::fmin(wanted, highest), 0.0);
    QRect bar = background;
    bar.setTop(int(background.bottom() - rows));
    return bar;
}

QRect ChangedRowsOf(const QRect& before, const QRect& after, int radius)
{
    if (before == after)
        return QRect();
    const int corners = ClampToWidgetSize(qMax(0, radius)) + OUTLINE;
    // The corners of a low bar are squeezed, all of them.
    if (qMin(before.height(), after.height()) <= 2 * corners)
        return (before | after).adjusted(-OUTLINE, -OUTLINE, OUTLINE, OUTLINE);
    QRect rows = after.adjusted(-OUTLINE, 0, OUTLINE, 0);
    rows.setTop(qMin(before.top(), after.top()) - OUTLINE);
    rows.setBottom(qMax(before.top(), after.top()) + corners);
    return rows;
}

} // namespace

Bars BarsOf(const Input& input)
{
    Bars bars;
    const int x = ClampToWidgetSize(input.offsetX);
    const int y = ClampToWidgetSize(input.offsetY);
    bars.background = QRect(x, y, input.size.width() - 2 * x, input.size.height() - 2 * y);
    bars.level = BarOf(bars.background, input.level, input);
    bars.volume = BarOf(bars.background, input.volume * input.level, input);
    return bars;
}

QRect ChangedRows(const Bars& before, const Bars& after, int radius)
{
    return ChangedRowsOf(before.level, after.level, radius) | ChangedRowsOf(before.volume, after.volume, radius);
}

} // namespace Zelkor::Vx::LevelMeterGeometry
