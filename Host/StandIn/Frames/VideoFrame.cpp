#include <Zelkor/StandIn/VideoFrame.h>

#include <StandIn/Frames/PixelLayout.h>

#include <cstdlib>
#include <limits>
#include <new>
#include <utility>

namespace Zelkor::StandIn {

namespace {

// Rows start on a cache line, so that vector code loads and stores whole lines.
constexpr std::int64_t ROW_ALIGNMENT = 64;

bool IsLargeEnough(const Plane& plane, const PlaneLayout& layout, int width, int height)
{
    const std::int64_t rowBytes = layout.RowBytes(width);
    const std::int64_t distance = std::abs(std::int64_t{plane.stride});
    if (!plane.data || distance < rowBytes)
        return false;
    // The padding of the row with the highest address may be missing.
    const std::int64_t needed = distance * (layout.Rows(height) - 1) + rowBytes;
    return plane.size >= static_cast<std::uint64_t>(needed);
}

// Returns uninitialized memory, or null.
std::shared_ptr<std::uint8_t> Allocate(std::size_t size)
{
    constexpr std::align_val_t ALIGNMENT{ROW_ALIGNMENT};
    auto* memory = static_cast<std::uint8_t*>(::operator new(size, ALIGNMENT, std::nothrow));
    return std::shared_ptr<std::uint8_t>(memory, [](std::uint8_t* data) { ::operator delete(data, ALIGNMENT); });
}

} // namespace

VideoFrame::VideoFrame(const FrameFormat& frameFormat, const Planes& framePlanes,
                       std::shared_ptr<const void> frameStorage, std::int64_t frameTime)
    : format(frameFormat), planes(framePlanes), storage(std::move(frameStorage)), time(frameTime)
{}

boost::intrusive_ptr<VideoFrame> VideoFrame::Reference(const FrameFormat& format, const Planes& planes,
                                                       std::shared_ptr<const void> storage, std::int64_t time)
{
    return new VideoFrame(format, planes, std::move(storage), time);
}

boost::intrusive_ptr<VideoFrame> VideoFrame::Create(const FrameFormat& format, const Fill& fill, std::int64_t time)
{
    const PixelLayout layout = LayoutOf(format.pixFmt);
    if (layout.planeCount == 0 || format.width <= 0 || format.height <= 0)
        return nullptr;

    Planes planes;
    std::array<int, 3> strides{};
    std::array<std::size_t, 3> offsets{};
    std::size_t total = 0;
    for (int i = 0; i < layout.planeCount; ++i) {
        const std::int64_t rowBytes = layout.planes[i].RowBytes(format.width);
        const std::int64_t stride = (rowBytes + ROW_ALIGNMENT - 1) / ROW_ALIGNMENT * ROW_ALIGNMENT;
        if (stride > std::numeric_limits<int>::max())
            return nullptr;
        const std::int64_t size = stride * layout.planes[i].Rows(format.height);
        strides[i] = static_cast<int>(stride);
        offsets[i] = total;
        planes[i].stride = strides[i];
        planes[i].size = static_cast<std::size_t>(size);
        total += planes[i].size;
    }

    const std::shared_ptr<std::uint8_t> memory = Allocate(total);
    if (!memory)
        return nullptr;
    std::array<std::uint8_t*, 3> data{};
    for (int i = 0; i < layout.planeCount; ++i) {
        data[i] = memory.get() + offsets[i];
        planes[i].data = data[i];
    }
    fill(data, strides);
    return new VideoFrame(format, planes, memory, time);
}

boost::intrusive_ptr<VideoFrame> VideoFrame::WithTime(std::int64_t newTime) const
{
    return new VideoFrame(format, planes, storage, newTime);
}

bool VideoFrame::IsReadable() const
{
    const PixelLayout layout = LayoutOf(format.pixFmt);
    if (layout.planeCount == 0 || format.width <= 0 || format.height <= 0)
        return false;
    for (int i = 0; i < layout.planeCount; ++i) {
        if (!IsLargeEnough(planes[i], layout.planes[i], format.width, format.height))
            return false;
    }
    return true;
}

} // namespace Zelkor::StandIn
