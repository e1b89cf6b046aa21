#include <StandIn/GStreamer/CameraMonitor.h>

#include <StandIn/GStreamer/CameraModes.h>
#include <StandIn/GStreamer/GStreamerDevices.h>

#include <algorithm>
#include <utility>

namespace Zelkor::StandIn {

namespace {

bool HasElement(const char* name)
{
    return GStreamerPtr<GstElementFactory>(gst_element_factory_find(name)) != nullptr;
}

std::string StringOf(const GstStructure& properties, const char* field)
{
    const char* value = gst_structure_get_string(&properties, field);
    return value ? value : "";
}

/// Returns an id that does not depend on the order of detection, or an empty string when the device is not a camera. It
/// includes the port, because cameras of the same model rarely have distinct serial numbers.
std::string IdentityOf(const GstStructure& properties)
{
    const std::string place = StringOf(properties, "v4l2.device.bus_info");
    const std::string card = StringOf(properties, "v4l2.device.card");
    if (StringOf(properties, "device.api") != "v4l2" || (place.empty() && card.empty()))
        return std::string();
    return "v4l2:" + place + ':' + card;
}

std::vector<GStreamerPtr<GstDevice>> DevicesOf(GstDeviceMonitor* monitor)
{
    std::vector<GStreamerPtr<GstDevice>> devices;
    GList* list = gst_device_monitor_get_devices(monitor);
    for (GList* entry = list; entry; entry = entry->next)
        devices.emplace_back(GST_DEVICE(entry->data));
    g_list_free(list);
    return devices;
}

} // namespace

CameraMonitor::CameraMonitor(std::function<void()> changed)
    : changed(std::move(changed)), monitor(gst_device_monitor_new())
{
    gst_device_monitor_add_filter(monitor.get(), "Video/Source", nullptr);
    const GStreamerPtr<GstBus> bus(gst_device_monitor_get_bus(monitor.get()));
    gst_bus_set_sync_handler(bus.get(), &CameraMonitor::HandleMessage, this, nullptr);
    isRunning = gst_device_monitor_start(monitor.get());
}

CameraMonitor::~CameraMonitor()
{
    if (isRunning)
        gst_device_monitor_stop(monitor.get());
    const GStreamerPtr<GstBus> bus(gst_device_monitor_get_bus(monitor.get()));
    gst_bus_set_sync_handler(bus.get(), nullptr, nullptr, nullptr);
}

std::vector<CameraMonitor::Camera> CameraMonitor::Cameras()
{
    std::vector<Known> current;
    std::set<std::string> identities;
    for (auto& device : DevicesOf(monitor.get())) {
        const auto old = std::find_if(known.begin(), known.end(),
                                      [&](const Known& entry) { return entry.device.get() == device.get(); });
        const bool isKnown = old != known.end();
        if (isKnown && old->camera)
            identities.insert(old->camera->GetId());
        current.push_back({std::move(device), isKnown ? old->camera : nullptr, isKnown});
    }
    known = std::move(current);
    std::vector<Camera> cameras;
    for (auto& entry : known) {
        if (!std::exchange(entry.wasLookedAt, true))
            entry.camera = CameraOf(entry.device.get(), identities);
        if (entry.camera)
            cameras.push_back(entry.camera);
    }
    return cameras;
}

/// Creates the camera for a device. Returns null when it is not a camera. `identities` are the ids in use: a camera
/// with several streams is detected several times.
CameraMonitor::Camera CameraMonitor::CameraOf(GstDevice* device, std::set<std::string>& identities) const
{
    const GStreamerPtr<GstStructure> properties(gst_device_get_properties(device));
    const std::string identity = properties ? IdentityOf(*properties) : std::string();
    const GStreamerPtr<GstCaps> caps(gst_device_get_caps(device));
    if (identity.empty() || !caps)
        return nullptr;
    auto modes = CameraModes(caps.get(), HasElement("jpegdec"));
    if (modes.empty())
        return nullptr;
    std::string unique = identity;
    for (int number = 2; !identities.insert(unique).second; ++number)
        unique = identity + '#' + std::to_string(number);
    const GStreamerPtr<gchar> name(gst_device_get_display_name(device));
    return CreateCamera(device, unique, name.get(), std::move(modes));
}

GstBusSyncReply CameraMonitor::HandleMessage(GstBus*, GstMessage* message, gpointer watch)
{
    static_cast<CameraMonitor*>(watch)->changed();
    gst_message_unref(message);
    return GST_BUS_DROP;
}

} // namespace Zelkor::StandIn
