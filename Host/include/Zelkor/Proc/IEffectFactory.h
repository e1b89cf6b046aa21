#pragma once

#include <Zelkor/Proc/IEffect.h>

#include <string>

namespace Zelkor::Proc {

/// Makes the media core's effects. Any thread may call.
class VX_HOST_INTERFACE IEffectFactory : public virtual IRefCountable
{
public:
    /// Sets `effect` to a new effect of class `classId`, made by the implementation called `implName`; to null, with
    /// a log line, when there is none. `owner` is an object that the effect keeps alive, or empty.
    virtual void CreateEffect(boost::intrusive_ptr<IEffect>& effect, const std::string& classId,
                              const std::string& implName, const boost::intrusive_ptr<IRefCountable>& owner) const = 0;
};

} // namespace Zelkor::Proc
