#pragma once

#include <Zelkor/Proc/IDataVideo.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

namespace Zelkor::StandIn {

/// The coefficients of a conversion between RGB and YUV.
enum class ColorMatrix {
    BT601, ///< ITU-R BT.601, standard definition
    BT709, ///< ITU-R BT.709, high definition
};

/// The range of YUV samples.
enum class ColorRange {
    Limited, ///< luma from 16 to 235, chroma from 16 to 240
    Full,    ///< 0 to 255
};

/// Describes how the samples of a frame are read.
struct FrameFormat
{
    Proc::PixFmt pixFmt = Proc::PixFmt::None; ///< default `None`
    int width = 0;                            ///< in pixels, default 0
    int height = 0;                           ///< in pixels, default 0
    ColorMatrix matrix = ColorMatrix::BT601;  ///< for YUV formats only, default `BT601`
    ColorRange range = ColorRange::Limited;   ///< for YUV formats and `GRAY8` only, default `Limited`
};

/// One plane of samples.
struct Plane
{
    const std::uint8_t* data = nullptr; ///< start of the top row, default null
    int stride = 0;                     ///< bytes from one row to the next; negative for bottom-up pictures; default 0
    std::size_t size = 0;               ///< bytes from the start of the row with the lowest address, default 0
};

/// The planes of a frame. Unused planes have no data.
using Planes = std::array<Plane, 3>;

/// The frame class of the stand-in: planes in memory, their format and a timestamp.
///
/// Planes are in memory order, so those of `YV12` are Y, V, U. The chroma of a frame with odd width or height includes
/// the last column and row: its size is (width + 1) / 2 by (height + 1) / 2. Frames are immutable; any thread may read
/// them.
class VX_HOST_EXPORT VideoFrame : public RefCounted<Proc::IDataVideo>
{
public:
    /// Creates a frame that refers to existing memory. `storage` must keep the planes valid and unchanged. `time` is in
    /// nanoseconds of the session's clock. The planes are not checked: call `IsReadable` before you read them.
    static boost::intrusive_ptr<VideoFrame> Reference(const FrameFormat& format, const Planes& planes,
                                                      std::shared_ptr<const void> storage, std::int64_t time = 0);

    /// Writes the planes of a new frame. `strides` are in bytes.
    using Fill = std::function<void(const std::array<std::uint8_t*, 3>& data, const std::array<int, 3>& strides)>;

    /// Creates a frame that owns its memory, which `fill` writes. The rows of each plane are padded to 64 bytes.
    /// Returns null without calling `fill` for a format without planes, an empty size, and a size that does not fit
    /// into memory.
    static boost::intrusive_ptr<VideoFrame> Create(const FrameFormat& format, const Fill& fill, std::int64_t time = 0);

    /// Returns a frame with the same planes and another timestamp.
    boost::intrusive_ptr<VideoFrame> WithTime(std::int64_t time) const;

    /// Returns true when the format is known, the size is positive and each plane is large enough.
    bool IsReadable() const;

    Proc::PixFmt GetPixelFormat() const override { return format.pixFmt; }
    const FrameFormat& GetFormat() const { return format; }
    const Planes& GetPlanes() const { return planes; }
    /// In nanoseconds of the session's clock.
    std::int64_t GetTime() const { return time; }

private:
    VideoFrame(const FrameFormat& format, const Planes& planes, std::shared_ptr<const void> storage, std::int64_t time);

    FrameFormat format;
    Planes planes;
    std::shared_ptr<const void> storage;
    std::int64_t time;
};

} // namespace Zelkor::StandIn
