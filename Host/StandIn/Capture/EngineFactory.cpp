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

/// Why the engine cannot capture this; null when it can.
const char* Objection(const Acquis::CaptureSessionInitializer& initializer, const Device& device, const Mode& mode)
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
    const boost::intrusive_ptr<Acquis::ICaptureFactory> own{new EngineFactory};
    std::mutex mutex;
    boost::intrusive_ptr<Acquis::ICaptureFactory> current = own;
};

Choice& TheChoice()
{
    static auto& choice = *new Choice;
    return choice;
}

} // namespace

boost::intrusive_ptr<Acquis::ICaptureFactory> CurrentCaptureFactory()
{
    auto& choice = TheChoice();
    const std::lock_guard<std::mutex> lock(choice.mutex);
    return choice.current;
}

void OverrideCaptureFactory(const boost::intrusive_ptr<Acquis::ICaptureFactory>& factory)
{
    auto& choice = TheChoice();
    auto next = factory ? factory : choice.own;
    const std::lock_guard<std::mutex> lock(choice.mutex);
    choice.current.swap(next);
}

} // namespace Zelkor::StandIn
