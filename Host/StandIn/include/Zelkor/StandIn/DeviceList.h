#pragma once

#include <Zelkor/StandIn/CaptureDevice.h>

#include <QList>
#include <QObject>

#include <memory>

namespace Zelkor::StandIn {

/// The devices that can be captured now: cameras, the screen, and always the test picture, in this order.
///
/// Cameras are looked for on a thread of the list's own: a new list has the devices that need no search, and tells by
/// `Changed` when cameras were found, plugged in or unplugged. GUI thread.
class VX_HOST_EXPORT DeviceList : public QObject
{
    Q_OBJECT

public:
    using Device = boost::intrusive_ptr<CaptureDevice>;

    explicit DeviceList(QObject* parent = nullptr);
    ~DeviceList() override;

    QList<Device> GetDevices() const;

    /// The device with this identity, or null.
    Device FindDevice(const QString& id) const;

    /// True once the first search for cameras is over.
    bool IsComplete() const;

Q_SIGNALS:
    /// The list is another than before. A device that is still there keeps its object.
    void Changed();

private:
    void Look();

    struct Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::StandIn
