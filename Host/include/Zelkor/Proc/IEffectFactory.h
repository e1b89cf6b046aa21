#pragma once

#include <Zelkor/Proc/IEffect.h>

#include <string>

namespace Zelkor::Proc {

/// Creates the effects of the media core. Any thread may call.
class VX_HOST_INTERFACE IEffectFactory : public virtual IRefCountable
{
public:
    /// Sets `effect` to a new effect of the class `classId` in the implementation `implName`. Logs an error and sets it
    /// to null when there is none. The effect keeps `owner` alive, which may be null.
    virtual void CreateEffect(boost::intrusive_ptr<IEffect>& effect, const std::string& classId,
                              const std::string& implName, const boost::intrusive_ptr<IRefCountable>& owner) const = 0;
};

} // namespace Zelkor::Proc
