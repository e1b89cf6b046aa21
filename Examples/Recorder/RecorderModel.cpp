#include "RecorderModel.h"

#include <QLocale>

#include <algorithm>

namespace Zelkor::Recorder {

namespace {

using Kind = StandIn::CaptureDevice::Kind;
using Mode = boost::intrusive_ptr<StandIn::VideoMode>;
using Device = RecorderModel::Device;

// Limits for the default mode: a larger picture is wasted on a preview, a slower one is not fluent.
constexpr int LARGEST_USEFUL_AREA = 1920 * 1080;
constexpr double FLUENT_RATE = 24;
constexpr double PREFERRED_RATE = 30;
// The preview rejects slower rates.
constexpr double LOWEST_RATE = 1;

QString IdOf(const Device& device)
{
    return QString::fromStdString(device->GetId());
}

// Translates the names of the stand-in's own devices, which are English.
QString NameOf(const Device& device)
{
    switch (device->GetKind()) {
    case Kind::TestPicture:
        return RecorderModel::tr("Test picture");
    case Kind::Screen:
        return RecorderModel::tr("Screen");
    default:
        return QString::fromStdString(device->GetName());
    }
}

QVector<double> RatesOf(const StandIn::VideoMode& mode)
{
    std::vector<Acquis::Rational> rationals;
    mode.GetFrameRates(rationals);
    QVector<double> rates;
    for (const Acquis::Rational& rational : rationals) {
        const double rate = rational.denominator > 0 ? double(rational.numerator) / double(rational.denominator) : 0;
        if (rate >= LOWEST_RATE && !rates.contains(rate))
            rates.append(rate);
    }
    std::sort(rates.begin(), rates.end());
    return rates;
}

double PreferredRate(const QVector<double>& rates)
{
    if (rates.isEmpty())
        return 0;
    return rates.contains(PREFERRED_RATE) ? PREFERRED_RATE : rates.last();
}

// Returns the largest mode within the limits, otherwise the first usable one.
QString PreferredMode(const StandIn::CaptureDevice& device)
{
    Mode best;
    Mode first;
    const auto areaOf = [](const Mode& mode) { return mode->GetFormat().width * mode->GetFormat().height; };
    for (const Mode& mode : device.GetModes()) {
        const QVector<double> rates = RatesOf(*mode);
        if (rates.isEmpty())
            continue;
        if (!first)
            first = mode;
        if (rates.last() >= FLUENT_RATE && areaOf(mode) <= LARGEST_USEFUL_AREA &&
            (!best || areaOf(mode) > areaOf(best)))
            best = mode;
    }
    const Mode& preferred = best ? best : first;
    return preferred ? QString::fromStdString(preferred->GetName()) : QString();
}

Device FirstOfKind(const QList<Device>& devices, Kind kind)
{
    const auto found = std::find_if(devices.begin(), devices.end(),
                                    [kind](const Device& device) { return device->GetKind() == kind; });
    return found == devices.end() ? nullptr : *found;
}

Device FindById(const QList<Device>& devices, const QString& id)
{
    const auto found =
        std::find_if(devices.begin(), devices.end(), [&](const Device& device) { return IdOf(device) == id; });
    return found == devices.end() ? nullptr : *found;
}

} // namespace

RecorderModel::RecorderModel(QObject* parent) : QObject(parent) {}

void RecorderModel::SetDevices(const QList<Device>& newDevices)
{
    devices = newDevices;
    const Device same = current ? FindById(devices, IdOf(current)) : nullptr;
    const Device camera = FirstOfKind(devices, Kind::Camera);
    const bool cameraIsWanted = !chosenByPerson && camera && (!current || current->GetKind() != Kind::Camera);
    if (!current || cameraIsWanted) {
        const Device testPicture = FirstOfKind(devices, Kind::TestPicture);
        Take(camera ? camera : testPicture ? testPicture : devices.value(0));
        RestartUnlessStopped();
    } else if (same && (same != current || status == Status::Failed)) {
        // Plugged in again: keeps the choices that the new device object supports.
        const QString previousMode = mode;
        const double previousRate = frameRate;
        Take(same);
        if (FindMode(previousMode))
            TakeMode(previousMode);
        if (FrameRates().contains(previousRate))
            frameRate = previousRate;
        RestartUnlessStopped();
    }
    Q_EMIT OfferChanged();
}

QVector<RecorderModel::DeviceItem> RecorderModel::Devices() const
{
    QVector<DeviceItem> items;
    const auto append = [&items](const Device& device, bool isPresent) {
        items.append({IdOf(device), NameOf(device), device->GetKind(), isPresent});
    };
    if (current && !IsCurrentPresent())
        append(current, false);
    for (const Device& device : devices)
        append(device, true);
    return items;
}

QStringList RecorderModel::Modes() const
{
    QStringList names;
    if (current) {
        for (const Mode& candidate : current->GetModes()) {
            if (!RatesOf(*candidate).isEmpty())
                names.append(QString::fromStdString(candidate->GetName()));
        }
    }
    names.removeDuplicates();
    return names;
}

QVector<double> RecorderModel::FrameRates() const
{
    const StandIn::VideoMode* found = FindMode(mode);
    return found ? RatesOf(*found) : QVector<double>();
}

QString RecorderModel::CurrentDeviceId() const
{
    return current ? IdOf(current) : QString();
}

QString RecorderModel::CurrentDeviceName() const
{
    return current ? NameOf(current) : QString();
}

void RecorderModel::ChooseDevice(const QString& id)
{
    const Device device = FindById(devices, id);
    if (!device)
        return;
    chosenByPerson = true;
    if (device == current)
        return;
    Take(device);
    RestartUnlessStopped();
    Q_EMIT OfferChanged();
}

void RecorderModel::ChooseMode(const QString& name)
{
    if (name == mode || !Modes().contains(name))
        return;
    chosenByPerson = true;
    TakeMode(name);
    RestartUnlessStopped();
    Q_EMIT OfferChanged();
}

void RecorderModel::ChooseFrameRate(double rate)
{
    if (rate == frameRate || !FrameRates().contains(rate))
        return;
    chosenByPerson = true;
    frameRate = rate;
    RestartUnlessStopped();
    Q_EMIT OfferChanged();
}

void RecorderModel::ChooseRecordingMode(RecordingMode newMode)
{
    if (newMode >= RecordingMode::FullScreen && newMode <= RecordingMode::SoundOnly)
        SetRecording(recordingMode, newMode);
}

void RecorderModel::ChooseDrawingColor(QColor color)
{
    if (!color.isValid())
        return;
    color.setAlphaF(qMin(color.alphaF(), MAXIMUM_DRAWING_ALPHA));
    SetRecording(drawingColor, color);
}

void RecorderModel::ChooseClickSound(ClickSound sound)
{
    if (sound >= ClickSound::None && sound <= ClickSound::Typewriter)
        SetRecording(clickSound, sound);
}

template<class Value>
void RecorderModel::SetRecording(Value& member, const Value& value)
{
    if (member == value)
        return;
    member = value;
    Q_EMIT RecordingChanged();
}

void RecorderModel::Start()
{
    if (status != Status::Running)
        Restart();
}

void RecorderModel::Stop()
{
    SetStatus(Status::Stopped);
}

void RecorderModel::ReportFailure()
{
    if (status == Status::Running)
        SetStatus(Status::Failed);
}

void RecorderModel::Take(const Device& device)
{
    current = device;
    TakeMode(device ? PreferredMode(*device) : QString());
}

void RecorderModel::TakeMode(const QString& name)
{
    mode = name;
    frameRate = PreferredRate(FrameRates());
}

void RecorderModel::SetStatus(Status newStatus)
{
    if (status == newStatus)
        return;
    status = newStatus;
    Q_EMIT StatusChanged();
}

void RecorderModel::RestartUnlessStopped()
{
    if (status != Status::Stopped)
        Restart();
}

void RecorderModel::Restart()
{
    // The stream does not report an error for a device without a usable mode.
    const bool canRun = current && frameRate > 0;
    SetStatus(canRun ? Status::Running : Status::Failed);
    if (canRun)
        Q_EMIT RestartNeeded();
}

bool RecorderModel::IsCurrentPresent() const
{
    return current && FindById(devices, IdOf(current));
}

// The preview uses the first mode with a name, so its rates apply.
const StandIn::VideoMode* RecorderModel::FindMode(const QString& name) const
{
    if (!current)
        return nullptr;
    for (const Mode& candidate : current->GetModes()) {
        if (QString::fromStdString(candidate->GetName()) == name)
            return candidate.get();
    }
    return nullptr;
}

QString FrameRateText(double rate)
{
    return QLocale().toString(rate, 'g', 4);
}

} // namespace Zelkor::Recorder
