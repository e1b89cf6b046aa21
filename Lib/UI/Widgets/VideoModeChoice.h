#pragma once

#include <Zelkor/Acquis/ICaptureDevice.h>

namespace Zelkor::Vx {

/// The video mode and frame rate in which a device is captured. Internal.
struct VideoModeChoice
{
    boost::intrusive_ptr<Acquis::IVideoCaptureSettings> settings; ///< null if no mode is usable
    Acquis::Rational rate;
    double frameRate = 1.0;        ///< the value of `rate`
    bool hasUnusableRates = false; ///< a rate below 1 per second was requested or offered, and skipped
};

/// Returns the first video mode called `name`, or else the first one; in it the first rate equal to `frameRate`, or
/// else the last one. Skips rates below one frame per second.
VideoModeChoice ChooseVideoMode(const Acquis::ICaptureDevice& device, const std::string& name, double frameRate);

} // namespace Zelkor::Vx
