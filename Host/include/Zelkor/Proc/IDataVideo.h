#pragma once

#include <Zelkor/IRefCountable.h>
#include <Zelkor/Proc/PixFmt.h>

namespace Zelkor::Proc {

/// One video frame. A frame never changes after it was published, so any thread may read it without a lock.
class VX_HOST_INTERFACE IDataVideo : public virtual IRefCountable
{
public:
    virtual PixFmt GetPixelFormat() const = 0;
};

} // namespace Zelkor::Proc
