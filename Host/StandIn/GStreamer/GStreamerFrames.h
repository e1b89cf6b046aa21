#pragma once

#include <StandIn/GStreamer/GStreamerPtr.h>

#include <Zelkor/StandIn/VideoFrame.h>

#include <gst/video/video.h>

namespace Zelkor::StandIn {

/// Loads GStreamer at the first call. False when it cannot be loaded. Any thread.
bool LoadGStreamer();

/// `None` for formats that frames cannot have.
Proc::PixFmt PixFmtOf(GstVideoFormat format);
/// `GST_VIDEO_FORMAT_UNKNOWN` for `None` and for formats that GStreamer does not have.
GstVideoFormat GStreamerFormatOf(Proc::PixFmt pixFmt);

/// Raw video in any format that frames can have.
GStreamerPtr<GstCaps> FrameCaps();
/// Raw video of this format and size, at any rate.
GStreamerPtr<GstCaps> CapsOf(const FrameFormat& format);

/// A frame over the sample's buffer, which is mapped and kept as long as the frame lives. Null when the sample has no
/// picture in a format that frames can have.
boost::intrusive_ptr<VideoFrame> WrapSample(GstSample* sample, std::int64_t time);

} // namespace Zelkor::StandIn
