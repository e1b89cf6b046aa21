#pragma once

#include <Zelkor/Acquis/ICaptureSettings.h>

namespace Zelkor::Acquis {

/// A video source: a camera, a screen or a generated picture.
class VX_HOST_INTERFACE ICaptureDevice : public virtual IRefCountable
{
public:
    /// Replaces `settings` with the device's modes of one `SettingsKind`. Returns the same objects each time. Does not
    /// open the device.
    virtual void GetSettings(std::vector<boost::intrusive_ptr<ICaptureSettings>>& settings, unsigned kind) const = 0;
};

} // namespace Zelkor::Acquis
