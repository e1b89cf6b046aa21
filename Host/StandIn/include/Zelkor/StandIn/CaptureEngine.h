#pragma once

#include <Zelkor/Acquis/CaptureFactory.h>

#include <chrono>

namespace Zelkor::StandIn {

/// Makes `Acquis::CaptureFactory::Create` return `factory`, or the engine's own factory when null. For tests that
/// replace the engine. Any thread may call.
VX_HOST_EXPORT void OverrideCaptureFactory(const boost::intrusive_ptr<Acquis::ICaptureFactory>& factory);

/// Blocks until all threads of the engine have ended, including those that still close a device. Returns false on
/// timeout.
VX_HOST_EXPORT bool WaitForEngineIdle(std::chrono::milliseconds timeout);

} // namespace Zelkor::StandIn
