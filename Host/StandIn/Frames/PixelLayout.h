#pragma once

#include <Zelkor/Proc/PixFmt.h>

#include <array>
#include <cstdint>

namespace Zelkor::Proc {

/// How one plane is sampled: a row is a sequence of equal steps, each of which covers 2^widthShift columns of the
/// picture and takes `bytesPerStep` bytes; the plane has one row for 2^heightShift rows of the picture.
struct PlaneLayout
{
    int bytesPerStep = 0;
    int widthShift = 0;
    int heightShift = 0;

    /// Bytes that a row needs. An odd last column takes a whole step.
    constexpr std::int64_t RowBytes(int width) const { return Steps(width, widthShift) * bytesPerStep; }

    constexpr std::int64_t Rows(int height) const { return Steps(height, heightShift); }

private:
    static constexpr std::int64_t Steps(int length, int shift)
    {
        return (std::int64_t{length} + (1 << shift) - 1) >> shift;
    }
};

struct PixelLayout
{
    int planeCount = 0;
    std::array<PlaneLayout, 3> planes;
};

/// Without planes for a format that is not known.
constexpr PixelLayout LayoutOf(PixFmt format)
{
    constexpr PlaneLayout FULL{1, 0, 0};
    constexpr PlaneLayout HALF{1, 1, 1};
    switch (format) {
    case PixFmt::I420:
    case PixFmt::YV12:
        return {3, {FULL, HALF, HALF}};
    case PixFmt::NV12:
    case PixFmt::NV21:
        return {2, {FULL, PlaneLayout{2, 1, 1}}};
    case PixFmt::YUY2:
    case PixFmt::UYVY:
        return {1, {PlaneLayout{4, 1, 0}}};
    case PixFmt::RGB24:
    case PixFmt::BGR24:
        return {1, {PlaneLayout{3, 0, 0}}};
    case PixFmt::ARGB:
    case PixFmt::RGBA:
    case PixFmt::ABGR:
    case PixFmt::BGRA:
    case PixFmt::BGRX:
        return {1, {PlaneLayout{4, 0, 0}}};
    case PixFmt::GRAY8:
        return {1, {FULL}};
    case PixFmt::None:
        break;
    }
    return {};
}

} // namespace Zelkor::Proc
