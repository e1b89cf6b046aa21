#pragma once

#include <Zelkor/Proc/IDataVideo.h>

namespace Zelkor::Proc {

/// Base class of the settings of an effect. Each effect accepts one subclass.
class VX_HOST_INTERFACE IEffectSettings
{
public:
    virtual ~IEffectSettings() = default;
};

/// Converts frames, one at a time. Calls may come from different threads, but not at the same time.
class VX_HOST_INTERFACE IEffect : public virtual IRefCountable
{
public:
    /// Replaces `frame` with the processed frame, or with null when the effect cannot read it (null, unknown format,
    /// planes too small). The host logs the first of consecutive failures.
    virtual void Process(boost::intrusive_ptr<IDataVideo>& frame) = 0;

    /// Copies `settings` and applies them to later frames. Logs an error and ignores settings of another effect.
    virtual void ApplySettings(const IEffectSettings& settings) = 0;
};

} // namespace Zelkor::Proc
