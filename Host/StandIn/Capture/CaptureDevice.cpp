#include <Zelkor/StandIn/CaptureDevice.h>

#include <glog/logging.h>

#include <mutex>
#include <utility>

namespace Zelkor::StandIn {

struct VideoMode::ChosenRate
{
    std::mutex mutex;
    Acquis::Rational rate;
};

VideoMode::VideoMode(std::string name, const FrameFormat& format, std::vector<Acquis::Rational> rates,
                     std::string detail)
    : name(std::move(name)), format(format), rates(std::move(rates)), detail(std::move(detail)),
      chosen(std::make_unique<ChosenRate>())
{
    chosen->rate = this->rates.empty() ? Acquis::Rational{0, 0} : this->rates.back();
}

VideoMode::~VideoMode() = default;

void VideoMode::GetFrameRates(std::vector<Acquis::Rational>& result) const
{
    result = rates;
}

void VideoMode::SetFrameRate(const Acquis::Rational& rate)
{
    if (rate.numerator <= 0 || rate.denominator <= 0) {
        LOG(ERROR) << "Not a frame rate: " << rate.numerator << '/' << rate.denominator << " for " << name;
        return;
    }
    const std::lock_guard<std::mutex> lock(chosen->mutex);
    chosen->rate = rate;
}

Acquis::Rational VideoMode::GetFrameRate() const
{
    const std::lock_guard<std::mutex> lock(chosen->mutex);
    return chosen->rate;
}

CaptureDevice::CaptureDevice(Kind kind, std::string id, std::string name, Modes modes)
    : kind(kind), id(std::move(id)), name(std::move(name)), modes(std::move(modes))
{}

CaptureDevice::~CaptureDevice() = default;

void CaptureDevice::GetSettings(std::vector<boost::intrusive_ptr<Acquis::ICaptureSettings>>& settings,
                                unsigned settingsKind) const
{
    settings.clear();
    if (settingsKind == Acquis::SETTINGS_KIND_VIDEO)
        settings.assign(modes.begin(), modes.end());
}

boost::intrusive_ptr<Acquis::IDeviceSettings> CaptureDevice::GetDeviceSettings() const
{
    return nullptr;
}

} // namespace Zelkor::StandIn
