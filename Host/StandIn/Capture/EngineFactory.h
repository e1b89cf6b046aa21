#pragma once

#include <Zelkor/Acquis/CaptureFactory.h>

namespace Zelkor::StandIn {

/// The factory of the stand-in's engine, or the one set by `OverrideCaptureFactory`. Never null. Any thread may call.
boost::intrusive_ptr<Acquis::ICaptureFactory> CurrentCaptureFactory();

} // namespace Zelkor::StandIn
