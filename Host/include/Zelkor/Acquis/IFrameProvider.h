#pragma once

#include <Zelkor/Acquis/TimeShift.h>
#include <Zelkor/Proc/IDataVideo.h>

#include <string>

namespace Zelkor::Acquis {

/// Reads what a session captures, at the reader's own pace.
class VX_HOST_INTERFACE IFrameReader : public virtual IRefCountable
{
public:
    /// Sets `frame` to the newest frame, to null before the first one and after the session ended. Never waits. The
    /// same frame comes again until there is a newer one. Any thread may call.
    virtual void ReadLatestFrame(boost::intrusive_ptr<Proc::IDataVideo>& frame) = 0;
};

/// One consumer's view of a running session.
class VX_HOST_INTERFACE ICaptureOutput : public virtual IRefCountable
{
public:
    /// Sets how time stamps are mapped for this output; null for none.
    virtual void SetTimeShift(const boost::intrusive_ptr<TimeShift>& shift) = 0;

    /// The frame-reader interface of this output, never null; it keeps the output alive.
    virtual boost::intrusive_ptr<IFrameReader> GetFrameReader() = 0;
};

/// Gives a running session's frames to consumers.
class VX_HOST_INTERFACE IFrameProvider : public virtual IRefCountable
{
public:
    /// Sets `output` to a new output. `name` is for diagnostics; `index` selects one of the session's pictures.
    virtual void CreateOutput(boost::intrusive_ptr<ICaptureOutput>& output, const std::string& name, int index) = 0;
};

} // namespace Zelkor::Acquis
