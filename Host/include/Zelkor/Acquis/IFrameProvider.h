#pragma once

#include <Zelkor/Acquis/TimeShift.h>
#include <Zelkor/Proc/IDataVideo.h>

#include <string>

namespace Zelkor::Acquis {

/// Reads the frames of a session at the pace of the caller.
class VX_HOST_INTERFACE IFrameReader : public virtual IRefCountable
{
public:
    /// Sets `frame` to the newest frame, or to null before the first frame and after the end of the session. Returns
    /// the same frame until there is a newer one. Does not block. Any thread may call.
    virtual void ReadLatestFrame(boost::intrusive_ptr<Proc::IDataVideo>& frame) = 0;
};

/// The output of a running session for one consumer.
class VX_HOST_INTERFACE ICaptureOutput : public virtual IRefCountable
{
public:
    /// Sets the mapping of timestamps for this output. Null, the default, leaves them unchanged.
    virtual void SetTimeShift(const boost::intrusive_ptr<TimeShift>& shift) = 0;

    /// Returns the reader of this output, never null. The reader keeps the output alive.
    virtual boost::intrusive_ptr<IFrameReader> GetFrameReader() = 0;
};

/// Creates outputs of a running session.
class VX_HOST_INTERFACE IFrameProvider : public virtual IRefCountable
{
public:
    /// Sets `output` to a new output. `name` is used in log lines. `index` selects one of the session's devices, from
    /// 0.
    virtual void CreateOutput(boost::intrusive_ptr<ICaptureOutput>& output, const std::string& name, int index) = 0;
};

} // namespace Zelkor::Acquis
