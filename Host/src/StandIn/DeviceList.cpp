#include <Zelkor/StandIn/DeviceList.h>

#include <Acquis/DeviceSearch.h>

#include <QEvent>
#include <QGuiApplication>

#include <mutex>
#include <utility>

namespace Zelkor::StandIn {

namespace {

/// The way from the search's thread to a list, which may die at any time. The list is told by an event to look.
struct Mailbox
{
    std::mutex mutex; ///< guards all that follows
    DeviceList* list;
    DeviceSearch::Found found; ///< the newest
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
};

DeviceList::DeviceList(QObject* parent) : QObject(parent), impl(std::make_unique<Impl>())
{
    impl->mailbox->list = this;
    const auto report = [mailbox = impl->mailbox](const DeviceSearch::Found& found) {
        const std::lock_guard<std::mutex> lock(mailbox->mutex);
        mailbox->found = found;
        if (mailbox->list)
            QCoreApplication::postEvent(mailbox->list, new QEvent(QEvent::User));
    };
    impl->search = std::make_shared<DeviceSearch>(MayHaveX11Screen(), report);
    impl->search->Start();
}

DeviceList::~DeviceList()
{
    impl->search->End();
    const std::lock_guard<std::mutex> lock(impl->mailbox->mutex);
    impl->mailbox->list = nullptr;
}

void DeviceList::customEvent(QEvent*)
{
    DeviceSearch::Found found;
    {
        const std::lock_guard<std::mutex> lock(impl->mailbox->mutex);
        found = impl->mailbox->found;
    }
    impl->Take(this, found);
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
