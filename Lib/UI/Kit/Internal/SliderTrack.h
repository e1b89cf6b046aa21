#pragma once

namespace Zelkor::Vx::UI::Kit {

/// Maps the values of a ZSlider to pixels along its length. Values grow from the left or from the top in every layout
/// direction.
struct SliderTrack
{
    int extent;  ///< length of the slider in pixels
    int inset;   ///< space between either end of the slider and the groove in pixels
    int minimum; ///< smallest value
    int maximum; ///< largest value, not below `minimum`

    /// Returns the pixel that a thumb points at. Exact for ranges that start at 0: the minimum is not subtracted.
    int pixelOfThumb(int value) const;

    /// Returns the pixel at which a segment of the groove starts or ends.
    int pixelOfSegment(int value) const;

    /// Returns the value at a pixel, clamped to the ends of the groove.
    int valueAt(int pixel) const;
};

} // namespace Zelkor::Vx::UI::Kit
