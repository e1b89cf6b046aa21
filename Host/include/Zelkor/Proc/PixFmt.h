#pragma once

namespace Zelkor::Proc {

/// The memory layout of a frame's samples. The values are those of FFmpeg's `AVPixelFormat`; layouts that it does not
/// distinguish start at 0x1000. Component orders are byte orders.
enum class PixFmt : int {
    None = -1,     ///< no or any format
    I420 = 0,      ///< planes Y, U, V; chroma halved in both directions
    YUY2 = 1,      ///< packed Y U Y V; chroma halved horizontally
    RGB24 = 2,     ///< packed R G B
    BGR24 = 3,     ///< packed B G R
    GRAY8 = 8,     ///< one plane Y
    UYVY = 15,     ///< packed U Y V Y; chroma halved horizontally
    NV12 = 23,     ///< planes Y and U V; chroma halved in both directions
    NV21 = 24,     ///< planes Y and V U; chroma halved in both directions
    ARGB = 25,     ///< packed A R G B
    RGBA = 26,     ///< packed R G B A
    ABGR = 27,     ///< packed A B G R
    BGRA = 28,     ///< packed B G R A: `QImage::Format_RGB32` on little-endian machines
    YV12 = 0x1000, ///< planes Y, V, U; chroma halved in both directions
    BGRX = 0x1001, ///< `BGRA` with an undefined fourth byte
};

} // namespace Zelkor::Proc
