#pragma once

#include <Zelkor/Acquis/CaptureUnit.h>
#include <Zelkor/Proc/IEffectFactory.h>
#include <Zelkor/Time/IChronometer.h>

#include <memory>

namespace Zelkor::Acquis {

/// Describes what a capture session captures.
class VX_HOST_EXPORT CaptureSessionInitializer
{
public:
    using Unit = CaptureUnit<ICaptureDevice, ICaptureSettings>;

    /// `units` are the devices to capture. `effects` creates the effects that process frames. `chronometer` is the
    /// clock of the session, or null for the engine's own. `pixFmt` is the requested pixel format, or `PixFmt::None`
    /// for that of the device.
    CaptureSessionInitializer(const std::vector<Unit>& units,
                              const boost::intrusive_ptr<const Proc::IEffectFactory>& effects,
                              const std::shared_ptr<const Time::IChronometer>& chronometer, Proc::PixFmt pixFmt);
    ~CaptureSessionInitializer();

    const std::vector<Unit>& GetUnits() const { return units; }
    const boost::intrusive_ptr<const Proc::IEffectFactory>& GetEffectFactory() const { return effects; }
    const std::shared_ptr<const Time::IChronometer>& GetChronometer() const { return chronometer; }
    Proc::PixFmt GetPixelFormat() const { return pixFmt; }

private:
    std::vector<Unit> units;
    boost::intrusive_ptr<const Proc::IEffectFactory> effects;
    std::shared_ptr<const Time::IChronometer> chronometer;
    Proc::PixFmt pixFmt;
};

} // namespace Zelkor::Acquis
