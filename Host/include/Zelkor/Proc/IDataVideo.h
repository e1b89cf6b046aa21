#pragma once

#include <Zelkor/IRefCountable.h>
#include <Zelkor/Proc/PixFmt.h>

namespace Zelkor::Proc {

/// A video frame. Frames are immutable once published, so any thread may read them without a lock.
class VX_HOST_INTERFACE IDataVideo : public virtual IRefCountable
{
public:
    virtual PixFmt GetPixelFormat() const = 0;
};

} // namespace Zelkor::Proc
