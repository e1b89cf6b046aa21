#pragma once

#include <QRect>

/// The geometry of the volume slider's meter, on plain values. Internal.
namespace Zelkor::Vx::LevelMeterGeometry {

/// What the meter is drawn from, in pixels and shares of 1.
struct Input
{
    QSize size; ///< of the slider
    int offsetX = 0;
    int offsetY = 0;
    float volume = 0;
    float level = 0;
};

struct Bars
{
    QRect background;
    QRect level;
    QRect volume;
};

Bars BarsOf(const Input& input);

/// The rows that look different when the bars change from the one to the other, whose corners have this radius; empty
/// when none does.
QRect ChangedRows(const Bars& before, const Bars& after, int radius);

} // namespace Zelkor::Vx::LevelMeterGeometry
