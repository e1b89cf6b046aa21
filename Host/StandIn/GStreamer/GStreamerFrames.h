#pragma once

#include <StandIn/GStreamer/GStreamerPtr.h>

#include <Zelkor/StandIn/VideoFrame.h>

#include <gst/video/video.h>

namespace Zelkor::StandIn {

/// Loads GStreamer on the first call. Returns false when it cannot be loaded. Any thread may call.
bool LoadGStreamer();

/// Returns `None` for unsupported formats.
Proc::PixFmt PixFmtOf(GstVideoFormat format);
/// Returns `GST_VIDEO_FORMAT_UNKNOWN` for `None` and unknown formats.
GstVideoFormat GStreamerFormatOf(Proc::PixFmt pixFmt);

/// Returns the caps of raw video in any supported format.
GStreamerPtr<GstCaps> FrameCaps();
/// Returns the caps of raw video in this format and size, at any rate.
GStreamerPtr<GstCaps> CapsOf(const FrameFormat& format);

/// Creates a frame that refers to the sample's buffer and keeps it mapped. Returns null when the sample contains no
/// picture in a supported format.
boost::intrusive_ptr<VideoFrame> WrapSample(GstSample* sample, std::int64_t time);

} // namespace Zelkor::StandIn
