#pragma once

#include <Zelkor/StandIn/CaptureDevice.h>

#include <QList>
#include <QObject>

#include <memory>

namespace Zelkor::StandIn {

/// Lists the devices that can be captured now: the cameras, the screen and the test picture, in this order. In a
/// Wayland session, also for programs that use X11, there is no screen.
///
/// Cameras and the screen are searched on a worker thread. A new list contains the test picture only and emits
/// `Changed` when the first search ends and when a camera is plugged in or unplugged. GUI thread only.
class VX_HOST_EXPORT DeviceList : public QObject
{
    Q_OBJECT

public:
    using Device = boost::intrusive_ptr<CaptureDevice>;

    explicit DeviceList(QObject* parent = nullptr);
    ~DeviceList() override;

    QList<Device> GetDevices() const;

    /// Returns the device with this id, or null.
    Device FindDevice(const QString& id) const;

    /// Returns true once the first search has ended.
    bool IsComplete() const;

Q_SIGNALS:
    /// Emitted when the list has changed or is complete. A device that is still present is the same object as before.
    void Changed();

private:
    void Look();

    struct Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::StandIn
