#include <StandIn/GStreamer/GStreamerSource.h>

#include <StandIn/GStreamer/GStreamerFrames.h>

#include <glog/logging.h>

#include <algorithm>
#include <utility>

namespace Zelkor::StandIn {

namespace {

constexpr std::chrono::milliseconds CLOSING_CHECK(5);
constexpr std::chrono::hours LONG_TIME(1);
constexpr char JPEG[] = "image/jpeg";

std::int64_t Now()
{
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(time).count();
}

/// Adds a new element to the pipeline, which owns it. Logs an error and returns null when there is no such element.
GstElement* Add(GstBin* pipeline, const char* name)
{
    GstElement* element = gst_element_factory_make(name, nullptr);
    if (element)
        gst_bin_add(pipeline, element);
    else
        LOG(ERROR) << "GStreamer has no element " << name;
    return element;
}

} // namespace

bool DeviceAccess::Acquire(SourceChannel& channel)
{
    const auto isEnding = [](const SourceChannel* user) { return user->IsEnding(); };
    while (!channel.IsEnding()) {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            if (std::none_of(users.begin(), users.end(), isEnding)) {
                users.push_back(&channel);
                return true;
            }
        }
        channel.WaitForEnd(std::chrono::steady_clock::now() + CLOSING_CHECK);
    }
    return false;
}

void DeviceAccess::Release(SourceChannel& channel)
{
    const std::lock_guard<std::mutex> lock(mutex);
    users.remove(&channel);
}

GStreamerSource::GStreamerSource(MakeElement makeElement, const VideoMode& mode, std::shared_ptr<DeviceAccess> access)
    : makeElement(std::move(makeElement)), format(mode.GetFormat()), detail(mode.GetDetail()),
      rate(mode.GetFrameRate()), access(std::move(access))
{}

GStreamerSource::~GStreamerSource() = default;

CaptureError GStreamerSource::Run(SourceChannel& runChannel)
{
    if (!LoadGStreamer())
        return CaptureError::CannotOpen;
    if (!access->Acquire(runChannel))
        return CaptureError::None;
    channel = &runChannel;
    if (const auto pipeline = BuildPipeline()) {
        if (gst_element_set_state(pipeline.get(), GST_STATE_PLAYING) == GST_STATE_CHANGE_FAILURE)
            channel->Fail(CaptureError::CannotOpen);
        while (!channel->WaitForEnd(std::chrono::steady_clock::now() + LONG_TIME)) {
        }
        // Blocks until the streaming threads have ended. No callback runs afterwards.
        gst_element_set_state(pipeline.get(), GST_STATE_NULL);
    } else {
        channel->Fail(CaptureError::CannotOpen);
    }
    access->Release(runChannel);
    return CaptureError::None;
}

GStreamerPtr<GstElement> GStreamerSource::BuildPipeline()
{
    GStreamerPtr<GstElement> pipeline(GST_ELEMENT(gst_object_ref_sink(gst_pipeline_new(nullptr))));
    GstElement* first = makeElement();
    if (!first)
        return nullptr;
    gst_bin_add(GST_BIN(pipeline.get()), first);
    if (!Link(GST_BIN(pipeline.get()), first))
        return nullptr;
    const GStreamerPtr<GstBus> bus(gst_element_get_bus(pipeline.get()));
    gst_bus_set_sync_handler(bus.get(), &GStreamerSource::HandleMessage, this, nullptr);
    return pipeline;
}

/// Adds and links the elements that convert the output of `first` to frames.
bool GStreamerSource::Link(GstBin* pipeline, GstElement* first)
{
    const auto modeCaps = ModeCaps();
    if (!modeCaps)
        return false;
    GstElement* filter = Add(pipeline, "capsfilter");
    const bool isJpeg = gst_structure_has_name(gst_caps_get_structure(modeCaps.get(), 0), JPEG);
    GstElement* decoder = isJpeg ? Add(pipeline, "jpegdec") : filter;
    GstElement* converter = Add(pipeline, "videoconvert"); // passes supported formats through
    GstElement* sink = Add(pipeline, "appsink");
    if (!filter || !decoder || !converter || !sink)
        return false;
    g_object_set(filter, "caps", modeCaps.get(), nullptr);
    const auto frameCaps = FrameCaps();
    g_object_set(sink, "caps", frameCaps.get(), "max-buffers", 1U, "drop", TRUE, "sync", FALSE, nullptr);
    GstAppSinkCallbacks callbacks{};
    callbacks.new_sample = &GStreamerSource::HandleSample;
    gst_app_sink_set_callbacks(GST_APP_SINK(sink), &callbacks, this, nullptr);
    if (gst_element_link(first, filter) && (!isJpeg || gst_element_link(filter, decoder)) &&
        gst_element_link_many(decoder, converter, sink, nullptr))
        return true;
    LOG(ERROR) << "GStreamer does not link the parts of a capture pipeline";
    return false;
}

/// Returns the caps of the mode. Logs an error and returns null when the mode has none.
GStreamerPtr<GstCaps> GStreamerSource::ModeCaps() const
{
    GStreamerPtr<GstCaps> caps;
    if (!detail.empty())
        caps.reset(gst_caps_from_string(detail.c_str()));
    else if (GStreamerFormatOf(format.pixFmt) != GST_VIDEO_FORMAT_UNKNOWN)
        caps = CapsOf(format);
    if (!caps || gst_caps_is_empty(caps.get()) || gst_caps_is_any(caps.get())) {
        LOG(ERROR) << "Not a mode of a GStreamer device: " << detail;
        return nullptr;
    }
    if (rate.numerator > 0 && rate.denominator > 0)
        gst_caps_set_simple(caps.get(), "framerate", GST_TYPE_FRACTION, int(rate.numerator), int(rate.denominator),
                            nullptr);
    return caps;
}

/// Called on a streaming thread.
GstFlowReturn GStreamerSource::HandleSample(GstAppSink* sink, gpointer source)
{
    const GStreamerPtr<GstSample> sample(gst_app_sink_pull_sample(sink));
    if (!sample)
        return GST_FLOW_OK;
    auto* self = static_cast<GStreamerSource*>(source);
    if (const auto frame = WrapSample(sample.get(), Now())) {
        self->hasFrames = true;
        self->channel->Deliver(frame);
    }
    return GST_FLOW_OK;
}

/// Called on any thread of the pipeline.
GstBusSyncReply GStreamerSource::HandleMessage(GstBus*, GstMessage* message, gpointer source)
{
    auto* self = static_cast<GStreamerSource*>(source);
    if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR)
        self->HandleError(message);
    else if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_EOS)
        self->channel->Fail(CaptureError::None);
    gst_message_unref(message);
    return GST_BUS_DROP;
}

void GStreamerSource::HandleError(GstMessage* message)
{
    GError* error = nullptr;
    gchar* details = nullptr;
    gst_message_parse_error(message, &error, &details);
    const GStreamerPtr<GError> ownedError(error);
    const GStreamerPtr<gchar> ownedDetails(details);
    // Elements may report errors while the pipeline is shut down.
    if (channel->IsEnding())
        return;
    LOG(ERROR) << "GStreamer: " << error->message;
    if (!hasFrames)
        channel->Fail(CaptureError::CannotOpen);
    else
        channel->Fail(error->domain == GST_RESOURCE_ERROR ? CaptureError::Lost : CaptureError::Failed);
}

} // namespace Zelkor::StandIn
