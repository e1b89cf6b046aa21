#pragma once

#include <Zelkor/Proc/IEffectFactory.h>

namespace Zelkor::Core {

/// The media core of the process.
class VX_HOST_EXPORT CoreManager
{
public:
    /// Returns the only instance. Created on the first call, destroyed when the process exits. Any thread may call.
    static CoreManager& Instance();

    /// Returns the factory of the effects, never null. Any thread may call.
    boost::intrusive_ptr<Proc::IEffectFactory> GetEffectFactory() const;

    CoreManager(const CoreManager&) = delete;
    CoreManager& operator=(const CoreManager&) = delete;

private:
    CoreManager();
    ~CoreManager();

    boost::intrusive_ptr<Proc::IEffectFactory> effectFactory;
};

} // namespace Zelkor::Core
