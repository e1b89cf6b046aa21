#pragma once

#include <Zelkor/Acquis/CaptureSessionInitializer.h>
#include <Zelkor/Acquis/ICaptureSession.h>

namespace Zelkor::Acquis {

/// Creates capture sessions. Any thread may call.
///
/// The factory and the objects of the engine (sessions, outputs, readers, devices) may throw a `std::exception` from
/// any function that is not `noexcept`. `SetDevice` and `StartStream` of a preview stream pass such exceptions to their
/// caller. Elsewhere the stream logs them; an exception from a retry, an output, a reader or a conversion ends the
/// session.
class VX_HOST_INTERFACE ICaptureFactory : public virtual IRefCountable
{
public:
    /// Sets `session` to a new session that is not started. Logs an error and sets it to null when the engine cannot
    /// capture what `initializer` describes, or has no implementation `implName`. Does not open a device.
    virtual void CreateSession(boost::intrusive_ptr<ICaptureSession>& session,
                               const CaptureSessionInitializer& initializer, const std::string& implName) = 0;
};

/// Entry point of the capture engine.
struct VX_HOST_EXPORT CaptureFactory
{
    /// Returns the engine's factory, never null. Any thread may call.
    static boost::intrusive_ptr<ICaptureFactory> Create();
};

} // namespace Zelkor::Acquis
