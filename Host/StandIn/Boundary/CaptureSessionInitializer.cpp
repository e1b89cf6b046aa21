#include <Zelkor/Acquis/CaptureSessionInitializer.h>

namespace Zelkor::Acquis {

CaptureSessionInitializer::CaptureSessionInitializer(const std::vector<Unit>& units,
                                                     const boost::intrusive_ptr<const Proc::IEffectFactory>& effects,
                                                     const std::shared_ptr<const Time::IChronometer>& chronometer,
                                                     Proc::PixFmt pixFmt)
    : units(units), effects(effects), chronometer(chronometer), pixFmt(pixFmt)
{}

CaptureSessionInitializer::~CaptureSessionInitializer() = default;

} // namespace Zelkor::Acquis
