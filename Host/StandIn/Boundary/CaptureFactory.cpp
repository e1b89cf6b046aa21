#include <Zelkor/Acquis/CaptureFactory.h>

#include <StandIn/Capture/EngineFactory.h>

namespace Zelkor::Acquis {

boost::intrusive_ptr<ICaptureFactory> CaptureFactory::Create()
{
    return StandIn::CurrentCaptureFactory();
}

} // namespace Zelkor::Acquis
