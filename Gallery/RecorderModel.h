#pragma once

#include <Zelkor/StandIn/DeviceList.h>

#include <QObject>
#include <QStringList>
#include <QVector>

namespace Zelkor::Gallery {

/// What the recorder shows: which devices, modes and rates there are, which are chosen, and whether the picture runs.
///
/// Knows no widget. Until a person chooses a device, the model takes a camera as soon as there is one, the test picture
/// before that. A chosen device that is unplugged stays chosen, and is taken up again when it comes back. GUI thread.
class RecorderModel : public QObject
{
    Q_OBJECT

public:
    using Device = StandIn::DeviceList::Device;

    enum class Status {
        Stopped, ///< the person stopped it
        Running,
        Failed, ///< the device could not be opened, or was lost
    };

    /// A device as the person sees it; `isPresent` is false for the chosen one while it is unplugged.
    struct DeviceItem
    {
        QString id;
        QString name;
        StandIn::CaptureDevice::Kind kind;
        bool isPresent;
    };

    explicit RecorderModel(QObject* parent = nullptr);

    /// The devices that there are now. Keeps the choice where it can.
    void SetDevices(const QList<Device>& newDevices);

    QVector<DeviceItem> Devices() const;
    QStringList Modes() const;
    QVector<double> FrameRates() const;

    /// What is chosen; empty and 0 while there is no device.
    QString CurrentDeviceId() const;
    QString CurrentDeviceName() const;
    QString CurrentMode() const { return mode; }
    double CurrentFrameRate() const { return frameRate; }
    Device CurrentDevice() const { return current; }

    /// Choices of the person. What is not on offer is ignored; the choice of now again does nothing.
    void ChooseDevice(const QString& id);
    void ChooseMode(const QString& name);
    void ChooseFrameRate(double rate);

    Status GetStatus() const { return status; }

    /// Starts, or starts again after a failure.
    void Start();
    void Stop();

    /// To be called when the device turned out not to work. Ignored unless it should run.
    void ReportFailure();

Q_SIGNALS:
    /// The offer of devices, modes or rates, or the choice among them, is another one.
    void OfferChanged();

    /// The status is another one.
    void StatusChanged();

    /// The picture has to be started with what is chosen now, whether one runs or not.
    void RestartNeeded();

private:
    void Take(const Device& device);
    void TakeMode(const QString& name);
    void SetStatus(Status newStatus);
    void RestartUnlessStopped();
    void Restart();
    bool IsCurrentPresent() const;
    const StandIn::VideoMode* FindMode(const QString& name) const;

    QList<Device> devices;
    Device current;
    QString mode;
    double frameRate = 0;
    bool chosenByPerson = false;
    Status status = Status::Running;
};

/// A rate for people, without a unit: "30" or "29.97".
QString FrameRateText(double rate);

} // namespace Zelkor::Gallery
