#pragma once

#include <Zelkor/Acquis/ICaptureDevice.h>

namespace Zelkor::Vx {

/// The mode and the frame rate that a device is captured in. Internal.
struct VideoModeChoice
{
    boost::intrusive_ptr<Acquis::IVideoCaptureSettings> settings; ///< null when no mode is usable
    Acquis::Rational rate;
    double frameRate = 1.0;        ///< the value of `rate`
    bool hasUnusableRates = false; ///< a rate below 1 per second was asked for or offered, and passed over
};

/// Of the device's video modes the first one of this name, else its first one; in it the first rate that is exactly
/// `frameRate`, else the last one. Rates below one frame per second are passed over.
VideoModeChoice ChooseVideoMode(const Acquis::ICaptureDevice& device, const std::string& name, double frameRate);

} // namespace Zelkor::Vx
