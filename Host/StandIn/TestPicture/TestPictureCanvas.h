#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <array>
#include <cstdint>

namespace Zelkor::StandIn {

/// A colour in the sample values of the supported formats.
struct Ink
{
    /// `red`, `green`, `blue` range from 0 to 1.
    Ink(double red, double green, double blue, ColorMatrix matrix);

    std::uint8_t y, u, v; ///< limited range
    std::uint8_t r, g, b;
};

/// Draws horizontal spans into the planes of a frame, which is fast in every format. Spans are clipped to the picture.
/// Supports NV12, I420, YUY2 and BGRA.
class TestPictureCanvas
{
public:
    TestPictureCanvas(const FrameFormat& format, const std::array<std::uint8_t*, 3>& data,
                      const std::array<int, 3>& strides);

    int Width() const { return format.width; }
    int Height() const { return format.height; }
    ColorMatrix Matrix() const { return format.matrix; }

    /// Fills row `y` from `left` to `right`. Ends within a pixel are antialiased.
    void DrawSpan(int y, double left, double right, const Ink& ink);

    /// Adds `amount`, of 255, to the brightness of row `y` from `left` to `right`.
    void Brighten(int y, int left, int right, int amount);

private:
    void Fill(int y, int left, int right, const Ink& ink);
    void FillChroma(int y, int left, int right, const Ink& ink);
    void Blend(int y, int x, double share, const Ink& ink);
    std::uint8_t* Row(int plane, int y) const;

    const FrameFormat format;
    const std::array<std::uint8_t*, 3> data;
    const std::array<int, 3> strides;
};

} // namespace Zelkor::StandIn
