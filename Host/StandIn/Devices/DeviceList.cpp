#include <Zelkor/StandIn/DeviceList.h>

#include <StandIn/Devices/DeviceSearch.h>

#include <QGuiApplication>
#include <QTimer>

#include <chrono>
#include <mutex>
#include <optional>
#include <utility>

namespace Zelkor::StandIn {

namespace {

constexpr std::chrono::milliseconds LOOK_INTERVAL(100);

/// What the search's thread has found since the list looked last.
struct Mailbox
{
    std::mutex mutex;
    std::optional<DeviceSearch::Found> found; ///< guarded by `mutex`
};

// An X server that a Wayland session keeps for old programs has no picture of the screen.
bool MayHaveX11Screen()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

struct DeviceList::Impl
{
    void Take(DeviceList* list, const DeviceSearch::Found& newFound)
    {
        const bool isOther = newFound.cameras != found.cameras || newFound.screen != found.screen;
        const bool wasComplete = std::exchange(isComplete, true);
        found = newFound;
        // The end of the first search is news, even if it found nothing: it is known now that there is nothing.
        if (isOther || !wasComplete)
            Q_EMIT list->Changed();
    }

    const Device testPicture = CreateTestPictureDevice();
    const std::shared_ptr<Mailbox> mailbox = std::make_shared<Mailbox>();
    std::shared_ptr<DeviceSearch> search;
    DeviceSearch::Found found;
    bool isComplete = false;
    QTimer timer; ///< looks into the mailbox; a posted event could be swallowed, a timer's comes again
};

DeviceList::DeviceList(QObject* parent) : QObject(parent), impl(std::make_unique<Impl>())
{
    const auto report = [mailbox = impl->mailbox](const DeviceSearch::Found& found) {
        const std::lock_guard<std::mutex> lock(mailbox->mutex);
        mailbox->found = found;
    };
    connect(&impl->timer, &QTimer::timeout, this, &DeviceList::Look);
    impl->timer.start(LOOK_INTERVAL);
    impl->search = std::make_shared<DeviceSearch>(MayHaveX11Screen(), report);
    impl->search->Start();
}

DeviceList::~DeviceList()
{
    impl->search->End();
}

void DeviceList::Look()
{
    std::optional<DeviceSearch::Found> found;
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
