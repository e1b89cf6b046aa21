#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <array>
#include <cstdint>

namespace Zelkor::StandIn {

/// A colour, as the formats that the canvas knows write it.
struct Ink
{
    /// `red`, `green`, `blue` range from 0 to 1.
    Ink(double red, double green, double blue, ColorMatrix matrix);

    std::uint8_t y, u, v; ///< limited range
    std::uint8_t r, g, b;
};

/// Draws horizontal runs of one colour into the planes of a frame, which is what pictures of this size can be drawn
/// from cheaply in any format. Runs are clipped to the picture. Knows NV12, I420, YUY2 and BGRA.
class TestPictureCanvas
{
public:
    TestPictureCanvas(const FrameFormat& format, const std::array<std::uint8_t*, 3>& data,
                      const std::array<int, 3>& strides);

    int Width() const { return format.width; }
    int Height() const { return format.height; }
    ColorMatrix Matrix() const { return format.matrix; }

    /// From `left` to `right` in row `y`; the ends may lie within a pixel and are drawn softly.
    void DrawSpan(int y, double left, double right, const Ink& ink);

    /// Makes what is there brighter, by so much of the brightness range as `amount` of 255 is.
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
