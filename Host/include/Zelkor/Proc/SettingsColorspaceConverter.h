#pragma once

#include <Zelkor/Proc/IEffect.h>

namespace Zelkor::Proc {

/// Settings of the colour-space converter, the effect that brings frames into one pixel format.
class VX_HOST_EXPORT SettingsColorspaceConverter : public IEffectSettings
{
public:
    /// Class id under which the effect factory makes the converter.
    static constexpr char CLASS_ID[] = "ColorspaceConverter";

    /// `target` is the format of the frames that come out. With `passThrough` a frame that has it already comes out
    /// as it went in; without, it is copied.
    SettingsColorspaceConverter(PixFmt target, bool passThrough);
    ~SettingsColorspaceConverter() override;

    PixFmt GetTarget() const { return target; }
    bool IsPassThrough() const { return passThrough; }

private:
    PixFmt target;
    bool passThrough;
};

} // namespace Zelkor::Proc
