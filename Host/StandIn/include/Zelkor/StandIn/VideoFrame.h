#pragma once

#include <Zelkor/Proc/IDataVideo.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

namespace Zelkor::StandIn {

enum class ColorMatrix { BT601, BT709 };
enum class ColorRange { Limited, Full };

/// How a frame's samples are to be read. Matrix and range have a meaning for the YUV formats and for grey alone.
struct FrameFormat
{
    Proc::PixFmt pixFmt = Proc::PixFmt::None;
    int width = 0;
    int height = 0;
    ColorMatrix matrix = ColorMatrix::BT601;
    ColorRange range = ColorRange::Limited;
};

/// Rows of samples. `data` is the start of the top row, and each row begins `stride` bytes after the one above it; the
/// stride of a bottom-up picture is negative. `size` is the number of bytes of the plane, counted from the start of the
/// row with the lowest address.
struct Plane
{
    const std::uint8_t* data = nullptr;
    int stride = 0;
    std::size_t size = 0;
};

using Planes = std::array<Plane, 3>;

/// The stand-in's frame: planes in memory that somebody keeps alive, the format to read them by, and a time stamp.
///
/// `YV12` frames list their planes in memory order: Y, V, U. The chroma of a frame with odd width or height covers the
/// odd last column and row: it is (width + 1) / 2 by (height + 1) / 2.
class VX_HOST_EXPORT VideoFrame : public RefCounted<Proc::IDataVideo>
{
public:
    /// A frame over planes that stay valid and unchanged as long as `storage` is held. `time` is in nanoseconds of the
    /// session's clock. The planes are not checked here; whoever reads them asks `IsReadable` first.
    static boost::intrusive_ptr<VideoFrame> Reference(const FrameFormat& format, const Planes& planes,
                                                      std::shared_ptr<const void> storage, std::int64_t time = 0);

    /// A frame of its own memory, which `fill` writes before the frame is published. The rows of each plane are padded
    /// to 64 bytes. Null, without a call of `fill`, for a format that has no planes, for an empty size and for one that
    /// does not fit into memory.
    using Fill = std::function<void(const std::array<std::uint8_t*, 3>& data, const std::array<int, 3>& strides)>;
    static boost::intrusive_ptr<VideoFrame> Create(const FrameFormat& format, const Fill& fill, std::int64_t time = 0);

    /// The same picture under another time stamp.
    boost::intrusive_ptr<VideoFrame> WithTime(std::int64_t time) const;

    /// True when the format is known, the size is positive and each plane has the bytes that format and size need.
    bool IsReadable() const;

    Proc::PixFmt GetPixelFormat() const override { return format.pixFmt; }
    const FrameFormat& GetFormat() const { return format; }
    const Planes& GetPlanes() const { return planes; }
    std::int64_t GetTime() const { return time; }

private:
    VideoFrame(const FrameFormat& format, const Planes& planes, std::shared_ptr<const void> storage, std::int64_t time);

    FrameFormat format;
    Planes planes;
    std::shared_ptr<const void> storage;
    std::int64_t time;
};

} // namespace Zelkor::StandIn
