#pragma once

#include <Zelkor/Proc/IEffectFactory.h>

namespace Zelkor::Core {

/// The process-wide media core.
class VX_HOST_EXPORT CoreManager
{
public:
    /// The one instance, made at the first call. Any thread may call; it lives until the process ends.
    static CoreManager& Instance();

    /// The factory of the core's effects, never null. Any thread may call.
    boost::intrusive_ptr<Proc::IEffectFactory> GetEffectFactory() const;

    CoreManager(const CoreManager&) = delete;
    CoreManager& operator=(const CoreManager&) = delete;

private:
    CoreManager();
    ~CoreManager();

    boost::intrusive_ptr<Proc::IEffectFactory> effectFactory;
};

} // namespace Zelkor::Core
