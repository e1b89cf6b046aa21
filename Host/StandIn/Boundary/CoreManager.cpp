#include <Zelkor/Core/CoreManager.h>

#include <StandIn/Frames/ColorspaceConverter.h>

#include <Zelkor/Proc/ImplNames.h>

#include <glog/logging.h>

namespace Zelkor::StandIn {

namespace {

class EffectFactory : public RefCounted<Proc::IEffectFactory>
{
public:
    void CreateEffect(boost::intrusive_ptr<Proc::IEffect>& effect, const std::string& classId,
                      const std::string& implName, const boost::intrusive_ptr<IRefCountable>& owner) const override
    {
        const bool known = classId == Proc::SettingsColorspaceConverter::CLASS_ID;
        if (known && (implName.empty() || implName == Proc::ImplNames::DEFAULT)) {
            effect = new ColorspaceConverter(owner);
            return;
        }
        LOG(ERROR) << "Zelkor::Core::EffectFactory::CreateEffect: no effect \"" << classId << "\" by \"" << implName
                   << "\"";
        effect = nullptr;
    }
};

} // namespace

} // namespace Zelkor::StandIn

namespace Zelkor::Core {

CoreManager::CoreManager() : effectFactory(new StandIn::EffectFactory) {}

CoreManager::~CoreManager() = default;

CoreManager& CoreManager::Instance()
{
    static CoreManager instance;
    return instance;
}

boost::intrusive_ptr<Proc::IEffectFactory> CoreManager::GetEffectFactory() const
{
    return effectFactory;
}

} // namespace Zelkor::Core
