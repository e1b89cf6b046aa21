#pragma once

#include <Zelkor/StandIn/DeviceList.h>

#include <QColor>
#include <QObject>
#include <QStringList>
#include <QVector>

namespace Zelkor::Recorder {

/// The available devices, modes and frame rates, the current ones, and the status of the stream.
///
/// Independent of widgets. Until the user chooses a device, the model uses the first camera, or the test picture
/// without one. An unplugged device remains current, and resumes when it returns. GUI thread.
class RecorderModel : public QObject
{
    Q_OBJECT

public:
    using Device = StandIn::DeviceList::Device;

    enum class Status {
        Stopped, ///< stopped by the user
        Running,
        Failed, ///< the device could not be opened, or was lost
    };

    /// The recorded part of the screen.
    enum class RecordingMode { FullScreen, Window, Region, AroundPointer, SoundOnly };

    /// The sound of a mouse click in the recording.
    enum class ClickSound { None, SoftClick, MechanicalKeyboard, Typewriter };

    /// A device in the list; `isPresent` is false for the current one while it is unplugged.
    struct DeviceItem
    {
        QString id;
        QString name;
        StandIn::CaptureDevice::Kind kind;
        bool isPresent;
    };

    explicit RecorderModel(QObject* parent = nullptr);

    /// Sets the available devices. Keeps the current choices if possible.
    void SetDevices(const QList<Device>& newDevices);

    QVector<DeviceItem> Devices() const;
    QStringList Modes() const;
    QVector<double> FrameRates() const;

    /// The current choices; empty and 0 without a device.
    QString CurrentDeviceId() const;
    QString CurrentDeviceName() const;
    QString CurrentMode() const { return mode; }
    double CurrentFrameRate() const { return frameRate; }
    Device CurrentDevice() const { return current; }

    /// Choices of the user. Unavailable and current values are ignored.
    void ChooseDevice(const QString& id);
    void ChooseMode(const QString& name);
    void ChooseFrameRate(double rate);

    /// Settings of the recording. The drawing colour is translucent: its opacity is at most the maximum.
    static constexpr double MAXIMUM_DRAWING_ALPHA = 0.8;
    RecordingMode CurrentRecordingMode() const { return recordingMode; }
    QColor CurrentDrawingColor() const { return drawingColor; }
    ClickSound CurrentClickSound() const { return clickSound; }

    /// Choices of the user. Invalid values are ignored.
    void ChooseRecordingMode(RecordingMode newMode);
    void ChooseDrawingColor(QColor color);
    void ChooseClickSound(ClickSound sound);

    Status GetStatus() const { return status; }

    /// Starts the stream, also after a failure.
    void Start();
    void Stop();

    /// Call it when the device fails. Ignored unless the stream runs.
    void ReportFailure();

Q_SIGNALS:
    /// Emitted when the available or current devices, modes or rates change.
    void OfferChanged();

    /// Emitted when the recording mode, drawing colour or click sound changes.
    void RecordingChanged();

    /// Emitted when the status changes.
    void StatusChanged();

    /// Emitted when the stream must be started or restarted with the current choices.
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

/// Returns a rate without a unit: "30" or "29.97".
QString FrameRateText(double rate);

} // namespace Zelkor::Recorder
