#pragma once

#include <Zelkor/Acquis/CaptureFactory.h>

#include <chrono>

namespace Zelkor::StandIn {

/// Has `Acquis::CaptureFactory::Create` return `factory` from now on, the engine's own again when null. For engines
/// that are scripted to fail.
VX_HOST_EXPORT void OverrideCaptureFactory(const boost::intrusive_ptr<Acquis::ICaptureFactory>& factory);

/// Waits until no session thread is left that still closes its device. False when the time ran out before.
VX_HOST_EXPORT bool WaitForEngineIdle(std::chrono::milliseconds timeout);

} // namespace Zelkor::StandIn
