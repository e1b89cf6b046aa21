#include <StandIn/Frames/BgraConversion.h>

#include <StandIn/Frames/PixelLayout.h>
#include <StandIn/Frames/YuvMatrix.h>

#include <libyuv/convert_argb.h>
#include <libyuv/planar_functions.h>

#include <cstddef>

// libyuv names layouts after the little-endian 32-bit word: its ARGB is our BGRA, its RAW our RGB24.

namespace Zelkor::StandIn {

namespace {

using Proc::PixFmt;

struct Target
{
    std::uint8_t* data;
    int stride;
};

using PackedToBgra = int (*)(const std::uint8_t* source, int sourceStride, std::uint8_t* target, int targetStride,
                             int width, int height);

int ConvertPlanar(const VideoFrame& frame, const Plane& u, const Plane& v, const Target& target)
{
    const FrameFormat& format = frame.GetFormat();
    const Plane& y = frame.GetPlanes()[0];
    return libyuv::I420ToARGBMatrix(y.data, y.stride, u.data, u.stride, v.data, v.stride, target.data, target.stride,
                                    &YuvMatrix(format.matrix, format.range), format.width, format.height);
}

template<class Convert>
int ConvertSemiPlanar(const VideoFrame& frame, const Target& target, Convert convert)
{
    const FrameFormat& format = frame.GetFormat();
    const Plane& y = frame.GetPlanes()[0];
    const Plane& chroma = frame.GetPlanes()[1];
    return convert(y.data, y.stride, chroma.data, chroma.stride, target.data, target.stride,
                   &YuvMatrix(format.matrix, format.range), format.width, format.height);
}

int ConvertPacked(const VideoFrame& frame, const Target& target, PackedToBgra convert)
{
    const Plane& plane = frame.GetPlanes()[0];
    return convert(plane.data, plane.stride, target.data, target.stride, frame.GetFormat().width,
                   frame.GetFormat().height);
}

// libyuv converts packed 4:2:2 directly for limited BT.601 only. Otherwise each row is split into luma and chroma
// pairs, which remain in the L1 cache until they are converted like a row of NV12.
int ConvertPacked422(const VideoFrame& frame, const Target& target, std::vector<std::uint8_t>& scratch,
                     PackedToBgra convert, bool lumaFirst)
{
    const FrameFormat& format = frame.GetFormat();
    if (format.matrix == ColorMatrix::BT601 && format.range == ColorRange::Limited)
        return ConvertPacked(frame, target, convert);

    const Plane& plane = frame.GetPlanes()[0];
    const libyuv::YuvConstants& matrix = YuvMatrix(format.matrix, format.range);
    const int evenWidth = format.width + format.width % 2;
    scratch.resize(2 * std::size_t(evenWidth));
    std::uint8_t* const even = scratch.data();
    std::uint8_t* const odd = even + evenWidth;
    const std::uint8_t* const luma = lumaFirst ? even : odd;
    const std::uint8_t* const chroma = lumaFirst ? odd : even;

    int status = 0;
    for (int row = 0; row < format.height && status == 0; ++row) {
        libyuv::SplitUVPlane(plane.data + std::ptrdiff_t{plane.stride} * row, plane.stride, even, evenWidth, odd,
                             evenWidth, evenWidth, 1);
        status = libyuv::NV12ToARGBMatrix(luma, evenWidth, chroma, evenWidth,
                                          target.data + std::ptrdiff_t{target.stride} * row, target.stride, &matrix,
                                          format.width, 1);
    }
    return status;
}

int ConvertGrey(const VideoFrame& frame, const Target& target)
{
    const FrameFormat& format = frame.GetFormat();
    if (format.range == ColorRange::Full)
        return ConvertPacked(frame, target, libyuv::J400ToARGB);
    const Plane& plane = frame.GetPlanes()[0];
    return libyuv::I400ToARGBMatrix(plane.data, plane.stride, target.data, target.stride,
                                    &YuvMatrix(format.matrix, format.range), format.width, format.height);
}

// Sets the fourth byte to 255 by adding opaque black with saturation.
int ConvertBgrx(const VideoFrame& frame, const Target& target, std::vector<std::uint8_t>& scratch)
{
    constexpr std::uint8_t OPAQUE_BLACK[] = {0, 0, 0, 255};
    const FrameFormat& format = frame.GetFormat();
    const Plane& plane = frame.GetPlanes()[0];
    scratch.resize(sizeof OPAQUE_BLACK * std::size_t(format.width));
    for (std::size_t i = 0; i < scratch.size(); ++i)
        scratch[i] = OPAQUE_BLACK[i % sizeof OPAQUE_BLACK];
    constexpr int SAME_ROW = 0;
    return libyuv::ARGBAdd(plane.data, plane.stride, scratch.data(), SAME_ROW, target.data, target.stride, format.width,
                           format.height);
}

constexpr int UNKNOWN_FORMAT = -1;

int Convert(const VideoFrame& frame, const Target& target, std::vector<std::uint8_t>& scratch)
{
    const Planes& planes = frame.GetPlanes();
    switch (frame.GetPixelFormat()) {
    case PixFmt::I420:
        return ConvertPlanar(frame, planes[1], planes[2], target);
    case PixFmt::YV12:
        return ConvertPlanar(frame, planes[2], planes[1], target);
    case PixFmt::NV12:
        return ConvertSemiPlanar(frame, target, libyuv::NV12ToARGBMatrix);
    case PixFmt::NV21:
        return ConvertSemiPlanar(frame, target, libyuv::NV21ToARGBMatrix);
    case PixFmt::YUY2:
        return ConvertPacked422(frame, target, scratch, libyuv::YUY2ToARGB, true);
    case PixFmt::UYVY:
        return ConvertPacked422(frame, target, scratch, libyuv::UYVYToARGB, false);
    case PixFmt::RGB24:
        return ConvertPacked(frame, target, libyuv::RAWToARGB);
    case PixFmt::BGR24:
        return ConvertPacked(frame, target, libyuv::RGB24ToARGB);
    case PixFmt::ARGB:
        return ConvertPacked(frame, target, libyuv::BGRAToARGB);
    case PixFmt::RGBA:
        return ConvertPacked(frame, target, libyuv::ABGRToARGB);
    case PixFmt::ABGR:
        return ConvertPacked(frame, target, libyuv::RGBAToARGB);
    case PixFmt::BGRA:
        return ConvertPacked(frame, target, libyuv::ARGBCopy);
    case PixFmt::BGRX:
        return ConvertBgrx(frame, target, scratch);
    case PixFmt::GRAY8:
        return ConvertGrey(frame, target);
    case PixFmt::None:
        break;
    }
    return UNKNOWN_FORMAT;
}

} // namespace

bool ConvertToBgra(const VideoFrame& frame, std::uint8_t* target, int targetStride, std::vector<std::uint8_t>& scratch)
{
    return Convert(frame, {target, targetStride}, scratch) == 0;
}

} // namespace Zelkor::StandIn
