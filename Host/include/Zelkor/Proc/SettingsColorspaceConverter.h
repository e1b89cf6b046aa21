#pragma once

#include <Zelkor/Proc/IEffect.h>

namespace Zelkor::Proc {

/// Settings of the colour-space converter, the effect that converts frames to one pixel format.
class VX_HOST_EXPORT SettingsColorspaceConverter : public IEffectSettings
{
public:
    /// The class id of the converter for `IEffectFactory::CreateEffect`.
    static constexpr char CLASS_ID[] = "ColorspaceConverter";

    /// `target` is the format of the converted frames. A frame that has this format already is returned as it is when
    /// `passThrough` is true, and copied otherwise.
    SettingsColorspaceConverter(PixFmt target, bool passThrough);
    ~SettingsColorspaceConverter() override;

    PixFmt GetTarget() const { return target; }
    bool IsPassThrough() const { return passThrough; }

private:
    PixFmt target;
    bool passThrough;
};

} // namespace Zelkor::Proc
