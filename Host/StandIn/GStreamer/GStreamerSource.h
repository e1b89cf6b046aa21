#pragma once

#include <StandIn/GStreamer/GStreamerPtr.h>

#include <Zelkor/StandIn/CaptureDevice.h>

#include <gst/app/gstappsink.h>

#include <atomic>
#include <functional>
#include <list>
#include <mutex>

namespace Zelkor::StandIn {

/// Coordinates the sources of one device. A device that an earlier source is still closing would be busy, so a new
/// source waits here. Any thread may call.
class DeviceAccess
{
public:
    /// Blocks until no other user is ending. Returns false when `channel` has to end before that.
    bool Acquire(SourceChannel& channel);
    void Release(SourceChannel& channel);

private:
    std::mutex mutex;
    std::list<SourceChannel*> users;
};

/// Captures with a GStreamer pipeline of a source element, conversion and a sink.
class GStreamerSource : public CaptureSource
{
public:
    /// Creates the source element of the pipeline, which may be a bin. Returns null on failure.
    using MakeElement = std::function<GstElement*()>;

    GStreamerSource(MakeElement makeElement, const VideoMode& mode, std::shared_ptr<DeviceAccess> access);
    ~GStreamerSource() override;

    CaptureError Run(SourceChannel& channel) override;

private:
    GStreamerPtr<GstElement> BuildPipeline();
    bool Link(GstBin* pipeline, GstElement* first);
    GStreamerPtr<GstCaps> ModeCaps() const;

    static GstFlowReturn HandleSample(GstAppSink* sink, gpointer source);
    static GstBusSyncReply HandleMessage(GstBus* bus, GstMessage* message, gpointer source);
    void HandleError(GstMessage* message);

    const MakeElement makeElement;
    const FrameFormat format;
    const std::string detail;
    const Acquis::Rational rate;
    const std::shared_ptr<DeviceAccess> access;

    SourceChannel* channel = nullptr; ///< set before the pipeline starts
    std::atomic<bool> hasFrames{false};
};

} // namespace Zelkor::StandIn
