#pragma once

#include <StandIn/GStreamer/GStreamerPointers.h>

#include <Zelkor/StandIn/CaptureDevice.h>

#include <gst/app/gstappsink.h>

#include <atomic>
#include <functional>
#include <list>
#include <mutex>

namespace Zelkor::StandIn {

/// Who uses a device. One that is asked to open while an ended run still closes it would be found busy, so the new
/// run waits for that here. Shared by the sources of one device; any thread.
class DeviceUse
{
public:
    /// Waits for those that are ending, and joins the users. False when `channel` has to end before that.
    bool Begin(SourceChannel& channel);
    void End(SourceChannel& channel);

private:
    std::mutex mutex;
    std::list<SourceChannel*> users;
};

/// Runs a pipeline: an element that gives pictures, what turns them into frames, and a sink.
class GStreamerSource : public CaptureSource
{
public:
    /// Makes the first part of the pipeline, which may be a bin; null when that is not possible.
    using MakeElement = std::function<GstElement*()>;

    GStreamerSource(MakeElement makeElement, const VideoMode& mode, std::shared_ptr<DeviceUse> use);
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
    const std::shared_ptr<DeviceUse> use;

    SourceChannel* channel = nullptr; ///< set before the pipeline runs
    std::atomic<bool> hasFrames{false};
};

} // namespace Zelkor::StandIn
