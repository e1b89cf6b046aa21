#pragma once

#include <Zelkor/StandIn/DeviceList.h>

#include <QColor>
#include <QObject>
#include <QStringList>
#include <QVector>

namespace Zelkor::Recorder {

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

    /// What of the screen is recorded.
    enum class RecordingMode { FullScreen, Window, Region, AroundPointer, SoundOnly };

    /// What is heard in the recording when the person clicks.
    enum class ClickSound { None, SoftClick, MechanicalKeyboard, Typewriter };

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

    /// How to record. The drawing colour lets through what lies under it: its opacity is at most the maximum.
    static constexpr double MAXIMUM_DRAWING_ALPHA = 0.8;
    RecordingMode CurrentRecordingMode() const { return recordingMode; }
    QColor CurrentDrawingColor() const { return drawingColor; }
    ClickSound CurrentClickSound() const { return clickSound; }

    /// Choices of the person, as above: what there is not is ignored.
    void ChooseRecordingMode(RecordingMode newMode);
    void ChooseDrawingColor(QColor color);
    void ChooseClickSound(ClickSound sound);

    Status GetStatus() const { return status; }

    /// Starts, or starts again after a failure.
    void Start();
    void Stop();

    /// To be called when the device turned out not to work. Ignored unless it should run.
    void ReportFailure();

Q_SIGNALS:
    /// The offer of devices, modes or rates, or the choice among them, is another one.
    void OfferChanged();

    /// Recording mode, drawing colour or click sound is another one.
    void RecordingChanged();

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
    template<class Value>
    void SetRecording(Value& member, const Value& value);
    bool IsCurrentPresent() const;
    const StandIn::VideoMode* FindMode(const QString& name) const;

    QList<Device> devices;
    Device current;
    QString mode;
    double frameRate = 0;
    bool chosenByPerson = false;
    Status status = Status::Running;
    RecordingMode recordingMode = RecordingMode::FullScreen;
    QColor drawingColor{255, 92, 95, 153};
    ClickSound clickSound = ClickSound::SoftClick;
};

/// A rate for people, without a unit: "30" or "29.97".
QString FrameRateText(double rate);

} // namespace Zelkor::Recorder
