#include <Zelkor/StandIn/GStreamerDevice.h>

namespace Zelkor::StandIn {

boost::intrusive_ptr<CaptureDevice> CreateGStreamerDevice(const std::string&, const std::string&, const std::string&,
                                                          CaptureDevice::Modes)
{
    return nullptr;
}

} // namespace Zelkor::StandIn
