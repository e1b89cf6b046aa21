#pragma once

#include <Zelkor/Acquis/ICaptureSettings.h>

namespace Zelkor::Acquis {

/// Something that can be captured: a camera, a screen, a generated picture.
class VX_HOST_INTERFACE ICaptureDevice : public virtual IRefCountable
{
public:
    /// Replaces `settings` by the device's modes of one kind, always the same objects. Does not open the device.
    virtual void GetSettings(std::vector<boost::intrusive_ptr<ICaptureSettings>>& settings, unsigned kind) const = 0;
};

} // namespace Zelkor::Acquis
