#include <StandIn/GStreamer/GStreamerDevices.h>

#include <StandIn/GStreamer/GStreamerFrames.h>
#include <StandIn/GStreamer/GStreamerSource.h>

#include <Zelkor/StandIn/GStreamerDevice.h>

#include <glog/logging.h>

#include <utility>

namespace Zelkor::StandIn {

namespace {

constexpr char SCREEN_ID[] = "x11-screen";
constexpr char SCREEN_NAME[] = "Screen";
constexpr char SCREEN_SOURCE[] = "ximagesrc";
constexpr char SCREEN_DESCRIPTION[] =
    "ximagesrc use-damage=false show-pointer=true ! videoconvert ! videoscale add-borders=false";

const std::vector<Acquis::Rational>& ScreenRates()
{
    static const std::vector<Acquis::Rational> rates{{5, 1}, {15, 1}, {30, 1}, {60, 1}};
    return rates;
}

/// A device that captures from the element that `makeElement` creates.
class Device : public CaptureDevice
{
public:
    Device(Kind kind, const std::string& id, const std::string& name, Modes modes,
           GStreamerSource::MakeElement makeElement)
        : CaptureDevice(kind, id, name, std::move(modes)), makeElement(std::move(makeElement))
    {}

    std::unique_ptr<CaptureSource> CreateSource(const VideoMode& mode) const override
    {
        return std::make_unique<GStreamerSource>(makeElement, mode, access);
    }

private:
    const GStreamerSource::MakeElement makeElement;
    const std::shared_ptr<DeviceAccess> access = std::make_shared<DeviceAccess>();
};

GstElement* Parse(const std::string& description)
{
    GError* error = nullptr;
    GstElement* bin =
        gst_parse_bin_from_description_full(description.c_str(), TRUE, nullptr, GST_PARSE_FLAG_FATAL_ERRORS, &error);
    const GStreamerPtr<GError> owned(error);
    if (!bin)
        LOG(ERROR) << "GStreamer cannot make \"" << description << "\": " << (error ? error->message : "");
    return bin;
}

boost::intrusive_ptr<VideoMode> ScreenMode(int width, int height)
{
    const FrameFormat format{Proc::PixFmt::BGRX, width, height};
    return new VideoMode(std::to_string(width) + "×" + std::to_string(height), format, ScreenRates());
}

/// Reads the size of the X11 screen. Returns false when there is none to capture.
bool FindScreenSize(int& width, int& height)
{
    const GStreamerPtr<GstElement> element(gst_element_factory_make(SCREEN_SOURCE, nullptr));
    if (!element)
        return false;
    gst_object_ref_sink(element.get());
    bool found = false;
    // The element opens the display and learns its size on the transition to this state.
    if (gst_element_set_state(element.get(), GST_STATE_READY) == GST_STATE_CHANGE_SUCCESS) {
        const GStreamerPtr<GstPad> pad(gst_element_get_static_pad(element.get(), "src"));
        const GStreamerPtr<GstCaps> caps(gst_pad_query_caps(pad.get(), nullptr));
        if (!gst_caps_is_empty(caps.get()) && !gst_caps_is_any(caps.get())) {
            const GstStructure* structure = gst_caps_get_structure(caps.get(), 0);
            found = gst_structure_get_int(structure, "width", &width) &&
                    gst_structure_get_int(structure, "height", &height);
        }
    }
    gst_element_set_state(element.get(), GST_STATE_NULL);
    return found;
}

} // namespace

boost::intrusive_ptr<CaptureDevice> CreateCamera(GstDevice* device, const std::string& id, const std::string& name,
                                                 CaptureDevice::Modes modes)
{
    const std::shared_ptr<GstDevice> held(GST_DEVICE(gst_object_ref(device)), GStreamerRelease());
    return new Device(CaptureDevice::Kind::Camera, id, name, std::move(modes),
                      [held] { return gst_device_create_element(held.get(), nullptr); });
}

boost::intrusive_ptr<CaptureDevice> CreateScreen()
{
    int width = 0;
    int height = 0;
    if (!FindScreenSize(width, height))
        return nullptr;
    CaptureDevice::Modes modes{ScreenMode(width, height)};
    // Even sizes, as encoders require them.
    if (width >= 4 && height >= 4)
        modes.push_back(ScreenMode(width / 4 * 2, height / 4 * 2));
    return new Device(CaptureDevice::Kind::Screen, SCREEN_ID, SCREEN_NAME, std::move(modes),
                      [] { return Parse(SCREEN_DESCRIPTION); });
}

boost::intrusive_ptr<CaptureDevice> CreateGStreamerDevice(const std::string& id, const std::string& name,
                                                          const std::string& description, CaptureDevice::Modes modes)
{
    if (!LoadGStreamer())
        return nullptr;
    GstElement* attempt = Parse(description);
    if (!attempt)
        return nullptr;
    const GStreamerPtr<GstElement> owned(GST_ELEMENT(gst_object_ref_sink(attempt)));
    const GStreamerPtr<GstPad> pad(gst_element_get_static_pad(attempt, "src"));
    if (!pad) {
        LOG(ERROR) << "No pictures come out of \"" << description << '"';
        return nullptr;
    }
    return new Device(CaptureDevice::Kind::Other, id, name, std::move(modes),
                      [description] { return Parse(description); });
}

} // namespace Zelkor::StandIn
