#pragma once

#include <Zelkor/Acquis/CaptureSessionInitializer.h>
#include <Zelkor/Acquis/ICaptureSession.h>

namespace Zelkor::Acquis {

/// Makes capture sessions. Any thread may call.
///
/// This and all that the engine gives out (sessions, outputs, readers, devices) may throw a `std::exception` from any
/// function that is not `noexcept`. Exceptions pass through `SetDevice` and `StartStream` of a preview stream to the
/// caller. Elsewhere the stream logs them: one from a retry, an output, a reader or a conversion means that the session
/// is lost.
class VX_HOST_INTERFACE ICaptureFactory : public virtual IRefCountable
{
public:
    /// Sets `session` to a new, stopped session; to null, with a log line, when the engine cannot capture what the
    /// initializer describes. Does not open a device.
    virtual void CreateSession(boost::intrusive_ptr<ICaptureSession>& session,
                               const CaptureSessionInitializer& initializer, const std::string& implName) = 0;
};

/// Where the capture engine begins.
struct VX_HOST_EXPORT CaptureFactory
{
    /// The engine's factory, never null. Any thread may call.
    static boost::intrusive_ptr<ICaptureFactory> Create();
};

} // namespace Zelkor::Acquis
