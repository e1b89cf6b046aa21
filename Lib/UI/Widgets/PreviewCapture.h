#pragma once

#include <Zelkor/Acquis/CaptureFactory.h>
#include <Zelkor/Acquis/IFrameProvider.h>

/// Sets up the engine for a preview: video only, no processing, time stamps unchanged. Internal.
namespace Zelkor::Vx::PreviewCapture {

/// Creates a session for the device in the given mode. Returns null without a device or mode, and when the engine
/// creates none. Throws what the engine throws.
boost::intrusive_ptr<Acquis::ICaptureSession>
CreateSession(Acquis::ICaptureFactory& factory, const boost::intrusive_ptr<Acquis::ICaptureDevice>& device,
              const boost::intrusive_ptr<Acquis::IVideoCaptureSettings>& settings);

/// Creates an output of a running session, without a time shift.
boost::intrusive_ptr<Acquis::ICaptureOutput> CreateOutput(Acquis::IFrameProvider& provider);

} // namespace Zelkor::Vx::PreviewCapture
