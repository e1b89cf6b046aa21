#pragma once

#include <QRect>

/// Computes the geometry of the level meter in `VolumeSlider`, from plain values. Internal.
namespace Zelkor::Vx::LevelMeterGeometry {

struct Input
{
    QSize size;       ///< of the slider, in pixels
    int offsetX = 0;  ///< horizontal inset of the bars, in pixels
    int offsetY = 0;  ///< vertical inset of the bars, in pixels
    float volume = 0; ///< 0 to 1
    float level = 0;  ///< 0 to 1
};

struct Bars
{
    QRect background;
    QRect level;
    QRect volume;
};

Bars ComputeBars(const Input& input);

/// Returns the rectangle to repaint when the bars change; empty if nothing does. `radius` is that of the corners.
QRect DirtyRect(const Bars& before, const Bars& after, int radius);

} // namespace Zelkor::Vx::LevelMeterGeometry
