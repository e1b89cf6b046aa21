#include <Zelkor/Acquis/CaptureFactory.h>

#include <StandIn/Capture/CaptureSession.h>
#include <StandIn/Capture/EngineThreads.h>

#include <Zelkor/Proc/ImplNames.h>
#include <Zelkor/StandIn/CaptureEngine.h>

#include <glog/logging.h>

#include <algorithm>
#include <mutex>
#include <utility>

namespace Zelkor::Acquis {

namespace {

using Device = boost::intrusive_ptr<const StandIn::CaptureDevice>;
using Mode = boost::intrusive_ptr<const StandIn::VideoMode>;

/// Why the engine cannot capture this; null when it can.
const char* Objection(const CaptureSessionInitializer& initializer, const Device& device, const Mode& mode)
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

class EngineFactory : public RefCounted<ICaptureFactory>
{
public:
    void CreateSession(boost::intrusive_ptr<ICaptureSession>& session, const CaptureSessionInitializer& initializer,
                       const std::string& implName) override
    {
        session = nullptr;
        Device device;
        Mode mode;
        if (!initializer.GetUnits().empty()) {
            const auto& unit = initializer.GetUnits().front();
            device = dynamic_cast<const StandIn::CaptureDevice*>(unit.GetDevice().get());
            mode = dynamic_cast<const StandIn::VideoMode*>(unit.GetSettings().get());
        }
        const char* objection = implName.empty() || implName == Proc::ImplNames::DEFAULT
                                    ? Objection(initializer, device, mode)
                                    : "there is no implementation of this name";
        if (objection)
            LOG(ERROR) << "The capture engine makes no session (" << implName << "): " << objection;
        else
            session = new CaptureSession(device, mode, initializer.GetChronometer());
    }
};

/// The factory that `Create` gives. Never destroyed: threads may ask for it while the process exits.
struct Choice
{
    const boost::intrusive_ptr<ICaptureFactory> own{new EngineFactory};
    std::mutex mutex;
    boost::intrusive_ptr<ICaptureFactory> current = own;
};

Choice& TheChoice()
{
    static auto& choice = *new Choice;
    return choice;
}

} // namespace

boost::intrusive_ptr<ICaptureFactory> CaptureFactory::Create()
{
    auto& choice = TheChoice();
    const std::lock_guard<std::mutex> lock(choice.mutex);
    return choice.current;
}

} // namespace Zelkor::Acquis

namespace Zelkor::StandIn {

void OverrideCaptureFactory(const boost::intrusive_ptr<Acquis::ICaptureFactory>& factory)
{
    auto& choice = Acquis::TheChoice();
    auto next = factory ? factory : choice.own;
    const std::lock_guard<std::mutex> lock(choice.mutex);
    choice.current.swap(next);
}

bool WaitForEngineIdle(std::chrono::milliseconds timeout)
{
    return Acquis::EngineThreads::OfSessions().WaitForIdle(timeout);
}

} // namespace Zelkor::StandIn
