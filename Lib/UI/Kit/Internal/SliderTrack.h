#pragma once

namespace Zelkor::Vx::UI::Kit {

/// Where the values of a slider with thumbs lie along its length. Values grow from the left and from the top, in every
/// layout direction.
struct SliderTrack
{
    int extent;  ///< the slider's length in pixels
    int inset;   ///< what the groove leaves free at both ends, in pixels
    int minimum; ///< smallest value
    int maximum; ///< largest value, not below `minimum`

    /// The pixel that a thumb points at. The value counts as it is, from zero: exact for ranges that start there.
    int pixelOfThumb(int value) const;

    /// The pixel where a stretch of the groove starts or ends.
    int pixelOfSegment(int value) const;

    /// The value under a pixel; the nearer end for one beside the groove.
    int valueAt(int pixel) const;
};

} // namespace Zelkor::Vx::UI::Kit
