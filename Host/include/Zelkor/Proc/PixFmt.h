#pragma once

namespace Zelkor::Proc {

/// Layout of a frame's samples in memory. The numbers are those of FFmpeg's `AVPixelFormat`, component orders are
/// byte orders. `BGRA` (28) is what `QImage::Format_RGB32` reads on a little-endian machine.
/// Layouts for which that numbering has no value of their own start at 0x1000.
enum class PixFmt : int {
    None = -1,
    I420 = 0,
    YUY2 = 1,
    RGB24 = 2,
    BGR24 = 3,
    GRAY8 = 8,
    UYVY = 15,
    NV12 = 23,
    NV21 = 24,
    ARGB = 25,
    RGBA = 26,
    ABGR = 27,
    BGRA = 28,
    YV12 = 0x1000, ///< `I420` with the two chroma planes exchanged
    BGRX = 0x1001, ///< `BGRA` whose fourth byte has no meaning
};

} // namespace Zelkor::Proc
