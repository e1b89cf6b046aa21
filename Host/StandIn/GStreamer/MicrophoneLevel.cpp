#include <StandIn/GStreamer/MicrophoneLevel.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace Zelkor::StandIn {

namespace {

constexpr char LEVEL[] = "level";

/// Adds a new element to the pipeline, which owns it. Returns null when there is no such element.
GstElement* Add(GstBin* pipeline, const char* name)
{
    GstElement* element = gst_element_factory_make(name, nullptr);
    if (element)
        gst_bin_add(pipeline, element);
    return element;
}

// Returns the peak of the loudest channel.
double PeakOf(const GstStructure* levels)
{
    double highest = -std::numeric_limits<double>::infinity();
    const GValue* value = gst_structure_get_value(levels, "peak");
    if (!value)
        return highest;
    const auto* channels = static_cast<const GValueArray*>(g_value_get_boxed(value));
    for (guint i = 0; channels && i < channels->n_values; ++i)
        highest = std::max(highest, g_value_get_double(&channels->values[i]));
    return highest;
}

} // namespace

const std::vector<const char*>& MicrophoneLevel::Elements()
{
    static const std::vector<const char*> names{"pulsesrc", "alsasrc", "wasapisrc", "osxaudiosrc"};
    return names;
}

MicrophoneLevel::MicrophoneLevel(std::function<void(double)> peak, std::function<void()> failed)
    : peak(std::move(peak)), failed(std::move(failed))
{}

MicrophoneLevel::~MicrophoneLevel()
{
    // Blocks until the streaming threads have ended. No callback runs afterwards.
    if (pipeline)
        gst_element_set_state(pipeline.get(), GST_STATE_NULL);
}

bool MicrophoneLevel::Open(const char* element, std::chrono::nanoseconds interval)
{
    pipeline.reset(GST_ELEMENT(gst_object_ref_sink(gst_pipeline_new(nullptr))));
    auto* bin = GST_BIN(pipeline.get());
    GstElement* source = Add(bin, element);
    GstElement* converter = Add(bin, "audioconvert");
    GstElement* level = Add(bin, LEVEL);
    GstElement* sink = Add(bin, "fakesink");
    if (!source || !converter || !level || !sink || !gst_element_link_many(source, converter, level, sink, nullptr))
        return false;
    g_object_set(level, "interval", guint64(interval.count()), nullptr);
    const GStreamerPtr<GstBus> bus(gst_element_get_bus(pipeline.get()));
    gst_bus_set_sync_handler(bus.get(), &MicrophoneLevel::HandleMessage, this, nullptr);
    return gst_element_set_state(pipeline.get(), GST_STATE_PLAYING) != GST_STATE_CHANGE_FAILURE;
}

/// Called on any thread of the pipeline.
GstBusSyncReply MicrophoneLevel::HandleMessage(GstBus*, GstMessage* message, gpointer microphone)
{
    auto* self = static_cast<MicrophoneLevel*>(microphone);
    const GstMessageType type = GST_MESSAGE_TYPE(message);
    if (type == GST_MESSAGE_ELEMENT && gst_message_has_name(message, LEVEL))
        self->peak(PeakOf(gst_message_get_structure(message)));
    else if (type == GST_MESSAGE_ERROR || type == GST_MESSAGE_EOS)
        self->failed();
    gst_message_unref(message);
    return GST_BUS_DROP;
}

} // namespace Zelkor::StandIn
