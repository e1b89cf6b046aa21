#pragma once

#include <Zelkor/StandIn/CaptureDevice.h>

#include <functional>

namespace Support {

using namespace Zelkor;

/// A device of the stand-in whose sources call a function.
class CallbackDevice : public StandIn::CaptureDevice
{
public:
    using Run = std::function<StandIn::CaptureError(StandIn::SourceChannel&)>;

    /// The device delivers 4×2 pixels in `GRAY8`. Without `run` it creates no sources, like a device that was
    /// unplugged.
    explicit CallbackDevice(Run run)
        : CaptureDevice(Kind::Other, "callback", "Callback",
                        {new StandIn::VideoMode("4×2", {Proc::PixFmt::GRAY8, 4, 2}, {{15, 1}, {30, 1}})}),
          run(std::move(run))
    {}

    std::unique_ptr<StandIn::CaptureSource> CreateSource(const StandIn::VideoMode&) const override
    {
        struct Source : StandIn::CaptureSource
        {
            explicit Source(const CallbackDevice::Run& run) : run(run) {}
            StandIn::CaptureError Run(StandIn::SourceChannel& channel) override { return run(channel); }
            const CallbackDevice::Run run;
        };
        return run ? std::make_unique<Source>(run) : nullptr;
    }

private:
    const Run run;
};

} // namespace Support
