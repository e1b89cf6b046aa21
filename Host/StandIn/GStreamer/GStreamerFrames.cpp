#include <StandIn/GStreamer/GStreamerFrames.h>

#include <glog/logging.h>

#include <algorithm>
#include <mutex>

namespace Zelkor::StandIn {

using Proc::PixFmt;

namespace {

struct FormatPair
{
    PixFmt pixFmt;
    GstVideoFormat format;
};

constexpr FormatPair FORMATS[] = {
    {PixFmt::I420, GST_VIDEO_FORMAT_I420},   {PixFmt::YV12, GST_VIDEO_FORMAT_YV12},
    {PixFmt::NV12, GST_VIDEO_FORMAT_NV12},   {PixFmt::NV21, GST_VIDEO_FORMAT_NV21},
    {PixFmt::YUY2, GST_VIDEO_FORMAT_YUY2},   {PixFmt::UYVY, GST_VIDEO_FORMAT_UYVY},
    {PixFmt::RGB24, GST_VIDEO_FORMAT_RGB},   {PixFmt::BGR24, GST_VIDEO_FORMAT_BGR},
    {PixFmt::RGBA, GST_VIDEO_FORMAT_RGBA},   {PixFmt::BGRA, GST_VIDEO_FORMAT_BGRA},
    {PixFmt::ARGB, GST_VIDEO_FORMAT_ARGB},   {PixFmt::ABGR, GST_VIDEO_FORMAT_ABGR},
    {PixFmt::GRAY8, GST_VIDEO_FORMAT_GRAY8}, {PixFmt::BGRX, GST_VIDEO_FORMAT_BGRx},
};

/// A buffer that is mapped for reading.
struct MappedFrame
{
    MappedFrame(GstVideoInfo* info, GstBuffer* buffer)
        : isMapped(gst_video_frame_map(&frame, info, buffer, GST_MAP_READ))
    {}
    ~MappedFrame()
    {
        if (isMapped)
            gst_video_frame_unmap(&frame);
    }
    MappedFrame(const MappedFrame&) = delete;
    MappedFrame& operator=(const MappedFrame&) = delete;

    GstVideoFrame frame;
    const bool isMapped;
};

/// Returns `Plane::size`: the bytes of the memory that contains the plane.
std::size_t BytesOf(const Plane& plane, const GstVideoFrame& frame)
{
    for (const auto& map : frame.map) {
        if (!map.data || plane.data < map.data || plane.data >= map.data + map.size)
            continue;
        const auto before = std::size_t(plane.data - map.data);
        const std::size_t after = map.size - before;
        return plane.stride < 0 ? before + std::min(after, std::size_t(-std::int64_t{plane.stride})) : after;
    }
    return 0;
}

FrameFormat FormatOf(const GstVideoInfo& info)
{
    FrameFormat format{PixFmtOf(GST_VIDEO_INFO_FORMAT(&info)), GST_VIDEO_INFO_WIDTH(&info),
                       GST_VIDEO_INFO_HEIGHT(&info)};
    format.matrix = info.colorimetry.matrix == GST_VIDEO_COLOR_MATRIX_BT709 ? ColorMatrix::BT709 : ColorMatrix::BT601;
    format.range = info.colorimetry.range == GST_VIDEO_COLOR_RANGE_0_255 ? ColorRange::Full : ColorRange::Limited;
    return format;
}

} // namespace

bool LoadGStreamer()
{
    static std::once_flag once;
    static bool loaded = false;
    std::call_once(once, [] {
        GError* error = nullptr;
        loaded = gst_init_check(nullptr, nullptr, &error);
        const GStreamerPtr<GError> owned(error);
        if (!loaded)
            LOG(ERROR) << "GStreamer cannot be loaded: " << (error ? error->message : "for no given reason");
    });
    return loaded;
}

PixFmt PixFmtOf(GstVideoFormat format)
{
    const auto* found =
        std::find_if(std::begin(FORMATS), std::end(FORMATS), [=](const auto& entry) { return entry.format == format; });
    return found == std::end(FORMATS) ? PixFmt::None : found->pixFmt;
}

GstVideoFormat GStreamerFormatOf(PixFmt pixFmt)
{
    const auto* found =
        std::find_if(std::begin(FORMATS), std::end(FORMATS), [=](const auto& entry) { return entry.pixFmt == pixFmt; });
    return found == std::end(FORMATS) ? GST_VIDEO_FORMAT_UNKNOWN : found->format;
}

GStreamerPtr<GstCaps> FrameCaps()
{
    GStreamerPtr<GstCaps> caps(gst_caps_new_empty());
    for (const auto& entry : FORMATS)
        gst_caps_append_structure(caps.get(), gst_structure_new("video/x-raw", "format", G_TYPE_STRING,
                                                                gst_video_format_to_string(entry.format), nullptr));
    return caps;
}

GStreamerPtr<GstCaps> CapsOf(const FrameFormat& format)
{
    return GStreamerPtr<GstCaps>(gst_caps_new_simple(
        "video/x-raw", "format", G_TYPE_STRING, gst_video_format_to_string(GStreamerFormatOf(format.pixFmt)), "width",
        G_TYPE_INT, format.width, "height", G_TYPE_INT, format.height, nullptr));
}

boost::intrusive_ptr<VideoFrame> WrapSample(GstSample* sample, std::int64_t time)
{
    GstCaps* caps = gst_sample_get_caps(sample);
    GstBuffer* buffer = gst_sample_get_buffer(sample);
    GstVideoInfo info;
    if (!caps || !buffer || !gst_video_info_from_caps(&info, caps))
        return nullptr;
    const FrameFormat format = FormatOf(info);
    if (format.pixFmt == PixFmt::None)
        return nullptr;
    const auto mapped = std::make_shared<MappedFrame>(&info, buffer);
    if (!mapped->isMapped)
        return nullptr;

    // In memory order, like the planes of a `VideoFrame`.
    const GstVideoFrame& frame = mapped->frame;
    Planes planes;
    for (guint i = 0; i < GST_VIDEO_FRAME_N_PLANES(&frame) && i < planes.size(); ++i) {
        planes[i].data = static_cast<const std::uint8_t*>(GST_VIDEO_FRAME_PLANE_DATA(&frame, i));
        planes[i].stride = GST_VIDEO_FRAME_PLANE_STRIDE(&frame, i);
        planes[i].size = BytesOf(planes[i], frame);
    }
    return VideoFrame::Reference(format, planes, mapped, time);
}

} // namespace Zelkor::StandIn
