#include <StandIn/TestPicture/TestPictureCanvas.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>

namespace Zelkor::StandIn {

using Proc::PixFmt;

namespace {

// The weights of red and blue in luma.
struct Weights
{
    double red;
    double blue;
};

constexpr Weights WEIGHTS_BT601{0.299, 0.114};
constexpr Weights WEIGHTS_BT709{0.2126, 0.0722};

std::uint8_t ToByte(double value)
{
    return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0, 255.0)));
}

std::uint8_t Mix(std::uint8_t from, std::uint8_t to, double share)
{
    return ToByte(from + (to - from) * share);
}

void BrightenBytes(std::uint8_t* bytes, int count, int step, int amount)
{
    for (int i = 0; i < count; ++i)
        bytes[i * step] = static_cast<std::uint8_t>(std::min(bytes[i * step] + amount, 255));
}

/// Repeats the `size` bytes at `unit` by doubling, which is as fast as copying.
void Repeat(std::uint8_t* to, const std::uint8_t* unit, std::size_t size, int count)
{
    if (count <= 0)
        return;
    const std::size_t total = size * std::size_t(count);
    std::memcpy(to, unit, size);
    for (std::size_t done = size; done < total; done *= 2)
        std::memcpy(to + done, to, std::min(done, total - done));
}

} // namespace

Ink::Ink(double red, double green, double blue, ColorMatrix matrix)
    : r(ToByte(red * 255)), g(ToByte(green * 255)), b(ToByte(blue * 255))
{
    const Weights weights = matrix == ColorMatrix::BT709 ? WEIGHTS_BT709 : WEIGHTS_BT601;
    const double luma = weights.red * red + (1 - weights.red - weights.blue) * green + weights.blue * blue;
    y = ToByte(16 + 219 * luma);
    u = ToByte(128 + 112 * (blue - luma) / (1 - weights.blue));
    v = ToByte(128 + 112 * (red - luma) / (1 - weights.red));
}

TestPictureCanvas::TestPictureCanvas(const FrameFormat& format, const std::array<std::uint8_t*, 3>& data,
                                     const std::array<int, 3>& strides)
    : format(format), data(data), strides(strides)
{}

void TestPictureCanvas::DrawSpan(int y, double left, double right, const Ink& ink)
{
    if (y < 0 || y >= format.height || right <= left)
        return;
    left = std::clamp(left, 0.0, double(format.width));
    right = std::clamp(right, 0.0, double(format.width));
    const int first = int(std::ceil(left));
    const int last = int(std::floor(right));
    if (first > last)
        return;
    Fill(y, first, last, ink);
    if (first > left)
        Blend(y, first - 1, first - left, ink);
    if (last < right)
        Blend(y, last, right - last, ink);
}

void TestPictureCanvas::Fill(int y, int left, int right, const Ink& ink)
{
    const int count = right - left;
    if (format.pixFmt == PixFmt::BGRA) {
        const std::uint8_t pixel[] = {ink.b, ink.g, ink.r, 255};
        Repeat(Row(0, y) + left * 4, pixel, sizeof pixel, count);
    } else if (format.pixFmt == PixFmt::YUY2) {
        // Two pixels share their chroma. Only luma is written for a pair that is half covered.
        const std::uint8_t pair[] = {ink.y, ink.u, ink.y, ink.v};
        const int firstPair = (left + 1) / 2;
        Repeat(Row(0, y) + firstPair * 4, pair, sizeof pair, right / 2 - firstPair);
        if (left < right && left % 2 == 1)
            Row(0, y)[left * 2] = ink.y;
        if (left < right && right % 2 == 1)
            Row(0, y)[(right - 1) * 2] = ink.y;
    } else {
        std::memset(Row(0, y) + left, ink.y, std::size_t(std::max(count, 0)));
        if (y % 2 == 0)
            FillChroma(y / 2, (left + 1) / 2, (right + 1) / 2, ink);
    }
}

void TestPictureCanvas::FillChroma(int y, int left, int right, const Ink& ink)
{
    if (left >= right)
        return;
    if (format.pixFmt == PixFmt::NV12) {
        const std::uint8_t pair[] = {ink.u, ink.v};
        Repeat(Row(1, y) + left * 2, pair, sizeof pair, right - left);
    } else {
        std::memset(Row(1, y) + left, ink.u, std::size_t(right - left));
        std::memset(Row(2, y) + left, ink.v, std::size_t(right - left));
    }
}

// Blends luma only, because chroma has a lower resolution than the edge.
void TestPictureCanvas::Blend(int y, int x, double share, const Ink& ink)
{
    std::uint8_t* row = Row(0, y);
    if (format.pixFmt == PixFmt::BGRA) {
        std::uint8_t* pixel = row + x * 4;
        pixel[0] = Mix(pixel[0], ink.b, share);
        pixel[1] = Mix(pixel[1], ink.g, share);
        pixel[2] = Mix(pixel[2], ink.r, share);
    } else {
        std::uint8_t* luma = row + (format.pixFmt == PixFmt::YUY2 ? x * 2 : x);
        *luma = Mix(*luma, ink.y, share);
    }
}

void TestPictureCanvas::Brighten(int y, int left, int right, int amount)
{
    left = std::max(left, 0);
    const int count = std::min(right, format.width) - left;
    if (y < 0 || y >= format.height)
        return;
    std::uint8_t* row = Row(0, y);
    if (format.pixFmt == PixFmt::BGRA)
        BrightenBytes(row + left * 4, count * 4, 1, amount); // the fourth byte is 255 and saturates
    else if (format.pixFmt == PixFmt::YUY2)
        BrightenBytes(row + left * 2, count, 2, amount);
    else
        BrightenBytes(row + left, count, 1, amount);
}

std::uint8_t* TestPictureCanvas::Row(int plane, int y) const
{
    return data[std::size_t(plane)] + std::ptrdiff_t(strides[std::size_t(plane)]) * y;
}

} // namespace Zelkor::StandIn
