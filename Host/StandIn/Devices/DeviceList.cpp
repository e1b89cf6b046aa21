#include <Zelkor/StandIn/DeviceList.h>

#include <StandIn/Devices/DeviceMonitor.h>

#include <QGuiApplication>
#include <QTimer>

#include <chrono>
#include <mutex>
#include <optional>
#include <utility>

namespace Zelkor::StandIn {

namespace {

constexpr std::chrono::milliseconds LOOK_INTERVAL(100);

/// The latest report of the monitor, until the list takes it.
struct Mailbox
{
    std::mutex mutex;
    std::optional<DeviceMonitor::Found> found; ///< guarded by `mutex`
};

// The X server of a Wayland session shows X11 windows on black instead of the screen, also to programs that use X11.
bool MayHaveX11Screen()
{
    return qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") && qgetenv("XDG_SESSION_TYPE") != "wayland" &&
           !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

struct DeviceList::Impl
{
    void Take(DeviceList* list, const DeviceMonitor::Found& newFound)
    {
        const bool isChanged = newFound.cameras != found.cameras || newFound.screen != found.screen;
        const bool wasComplete = std::exchange(isComplete, true);
        found = newFound;
        // The first search makes the list complete, even if it found nothing.
        if (isChanged || !wasComplete)
            Q_EMIT list->Changed();
    }

    const Device testPicture = CreateTestPictureDevice();
    const std::shared_ptr<Mailbox> mailbox = std::make_shared<Mailbox>();
    std::shared_ptr<DeviceMonitor> monitor;
    DeviceMonitor::Found found;
    bool isComplete = false;
    QTimer timer; ///< polls the mailbox: an event filter can drop a posted event for good, but not a timer
};

DeviceList::DeviceList(QObject* parent) : QObject(parent), impl(std::make_unique<Impl>())
{
    const auto report = [mailbox = impl->mailbox](const DeviceMonitor::Found& found) {
        const std::lock_guard<std::mutex> lock(mailbox->mutex);
        mailbox->found = found;
    };
    connect(&impl->timer, &QTimer::timeout, this, &DeviceList::Look);
    impl->timer.start(LOOK_INTERVAL);
    impl->monitor = std::make_shared<DeviceMonitor>(MayHaveX11Screen(), report);
    impl->monitor->Start();
}

DeviceList::~DeviceList()
{
    impl->monitor->RequestStop();
}

void DeviceList::Look()
{
    std::optional<DeviceMonitor::Found> found;
    {
        const std::lock_guard<std::mutex> lock(impl->mailbox->mutex);
        found.swap(impl->mailbox->found);
    }
    if (found)
        impl->Take(this, *found);
}

QList<DeviceList::Device> DeviceList::GetDevices() const
{
    QList<Device> devices;
    for (const auto& camera : impl->found.cameras)
        devices += camera;
    if (impl->found.screen)
        devices += impl->found.screen;
    devices += impl->testPicture;
    return devices;
}

DeviceList::Device DeviceList::FindDevice(const QString& id) const
{
    for (const auto& device : GetDevices()) {
        if (QString::fromStdString(device->GetId()) == id)
            return device;
    }
    return nullptr;
}

bool DeviceList::IsComplete() const
{
    return impl->isComplete;
}

} // namespace Zelkor::StandIn
