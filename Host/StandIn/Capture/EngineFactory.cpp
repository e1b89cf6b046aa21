#include <StandIn/Capture/EngineFactory.h>

#include <StandIn/Capture/CaptureSession.h>

#include <Zelkor/Proc/ImplNames.h>
#include <Zelkor/StandIn/CaptureEngine.h>

#include <glog/logging.h>

#include <algorithm>
#include <mutex>
#include <utility>

namespace Zelkor::StandIn {

namespace {

using Device = boost::intrusive_ptr<const CaptureDevice>;
using Mode = boost::intrusive_ptr<const VideoMode>;

/// Returns why the engine cannot capture this, or null when it can.
const char* UnsupportedReason(const Acquis::CaptureSessionInitializer& initializer, const Device& device,
                              const Mode& mode)
{
    if (initializer.GetUnits().size() != 1)
        return "it captures exactly one device";
    if (!device)
        return "the device is none of its own";
    const auto& modes = device->GetModes();
    if (!mode || std::find(modes.begin(), modes.end(), mode) == modes.end())
        return "the settings are none of the device's video modes";
    const Proc::PixFmt wanted = initializer.GetPixelFormat();
    if (wanted != Proc::PixFmt::None && wanted != mode->GetFormat().pixFmt)
        return "the device does not give the pixel format asked for";
    return nullptr;
}

class EngineFactory : public RefCounted<Acquis::ICaptureFactory>
{
public:
    void CreateSession(boost::intrusive_ptr<Acquis::ICaptureSession>& session,
                       const Acquis::CaptureSessionInitializer& initializer, const std::string& implName) override
    {
        session = nullptr;
        Device device;
        Mode mode;
        if (!initializer.GetUnits().empty()) {
            const auto& unit = initializer.GetUnits().front();
            device = dynamic_cast<const CaptureDevice*>(unit.GetDevice().get());
            mode = dynamic_cast<const VideoMode*>(unit.GetSettings().get());
        }
        const char* reason = implName.empty() || implName == Proc::ImplNames::DEFAULT
                                 ? UnsupportedReason(initializer, device, mode)
                                 : "there is no implementation of this name";
        if (reason)
            LOG(ERROR) << "The capture engine makes no session (" << implName << "): " << reason;
        else
            session = new CaptureSession(device, mode, initializer.GetChronometer());
    }
};

/// The factory that `Create` returns. Never destroyed: threads may call `Create` while the process exits.
struct Factories
{
    const boost::intrusive_ptr<Acquis::ICaptureFactory> own{new EngineFactory};
    std::mutex mutex;
    boost::intrusive_ptr<Acquis::ICaptureFactory> current = own;
};

Factories& TheFactories()
{
    static auto& factories = *new Factories;
    return factories;
}

} // namespace

boost::intrusive_ptr<Acquis::ICaptureFactory> CurrentCaptureFactory()
{
    auto& factories = TheFactories();
    const std::lock_guard<std::mutex> lock(factories.mutex);
    return factories.current;
}

void OverrideCaptureFactory(const boost::intrusive_ptr<Acquis::ICaptureFactory>& factory)
{
    auto& factories = TheFactories();
    auto next = factory ? factory : factories.own;
    const std::lock_guard<std::mutex> lock(factories.mutex);
    factories.current.swap(next);
}

} // namespace Zelkor::StandIn
