#pragma once

#include <Zelkor/Proc/PixFmt.h>

#include <array>
#include <cstdint>

namespace Zelkor::StandIn {

/// The sampling of one plane.
struct PlaneLayout
{
    int bytesPerStep = 0; ///< a step covers 2^widthShift columns of the picture
    int widthShift = 0;
    int heightShift = 0; ///< a row covers 2^heightShift rows of the picture

    /// Rounds up to whole steps.
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

/// Returns a layout without planes for an unknown format.
constexpr PixelLayout LayoutOf(Proc::PixFmt format)
{
    constexpr PlaneLayout FULL{1, 0, 0};
    constexpr PlaneLayout HALF{1, 1, 1};
    switch (format) {
    case Proc::PixFmt::I420:
    case Proc::PixFmt::YV12:
        return {3, {FULL, HALF, HALF}};
    case Proc::PixFmt::NV12:
    case Proc::PixFmt::NV21:
        return {2, {FULL, PlaneLayout{2, 1, 1}}};
    case Proc::PixFmt::YUY2:
    case Proc::PixFmt::UYVY:
        return {1, {PlaneLayout{4, 1, 0}}};
    case Proc::PixFmt::RGB24:
    case Proc::PixFmt::BGR24:
        return {1, {PlaneLayout{3, 0, 0}}};
    case Proc::PixFmt::ARGB:
    case Proc::PixFmt::RGBA:
    case Proc::PixFmt::ABGR:
    case Proc::PixFmt::BGRA:
    case Proc::PixFmt::BGRX:
        return {1, {PlaneLayout{4, 0, 0}}};
    case Proc::PixFmt::GRAY8:
        return {1, {FULL}};
    case Proc::PixFmt::None:
        break;
    }
    return {};
}

} // namespace Zelkor::StandIn
