#include <UI/Widgets/VideoModeChoice.h>

namespace Zelkor::Vx {

namespace {

using VideoSettings = boost::intrusive_ptr<Acquis::IVideoCaptureSettings>;

double ValueOf(const Acquis::Rational& rate)
{
    return rate.denominator > 0 ? double(rate.numerator) / double(rate.denominator) : 0.0;
}

bool IsUsable(double frameRate)
{
    return frameRate >= 1.0; // false for NaN
}

VideoSettings ChooseSettings(const Acquis::ICaptureDevice& device, const std::string& name)
{
    std::vector<boost::intrusive_ptr<Acquis::ICaptureSettings>> list;
    device.GetSettings(list, Acquis::SETTINGS_KIND_VIDEO);
    VideoSettings first;
    for (const auto& entry : list) {
        VideoSettings settings(dynamic_cast<Acquis::IVideoCaptureSettings*>(entry.get()));
        if (!settings)
            continue;
        if (settings->GetName() == name)
            return settings;
        if (!first)
            first = settings;
    }
    return first;
}

} // namespace

VideoModeChoice ChooseVideoMode(const Acquis::ICaptureDevice& device, const std::string& name, double frameRate)
{
    VideoModeChoice choice;
    choice.hasUnusableRates = !IsUsable(frameRate);
    const VideoSettings settings = ChooseSettings(device, name);
    std::vector<Acquis::Rational> rates;
    if (settings)
        settings->GetFrameRates(rates);
    for (const auto& rate : rates) {
        const double value = ValueOf(rate);
        if (!IsUsable(value)) {
            choice.hasUnusableRates = true;
        } else if (!choice.settings || choice.frameRate != frameRate) {
            choice.settings = settings;
            choice.rate = rate;
            choice.frameRate = value;
        }
    }
    return choice;
}

} // namespace Zelkor::Vx
