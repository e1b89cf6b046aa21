#include <Zelkor/StandIn/GStreamerDevice.h>

#if !defined(VX_WITH_GSTREAMER)

namespace Zelkor::StandIn {

boost::intrusive_ptr<CaptureDevice> CreateGStreamerDevice(const std::string&, const std::string&, const std::string&,
                                                          CaptureDevice::Modes)
{
    return nullptr;
}

} // namespace Zelkor::StandIn

#endif
