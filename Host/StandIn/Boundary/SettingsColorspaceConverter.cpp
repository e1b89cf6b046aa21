#include <Zelkor/Proc/SettingsColorspaceConverter.h>

namespace Zelkor::Proc {

SettingsColorspaceConverter::SettingsColorspaceConverter(PixFmt targetFormat, bool passMatching)
    : target(targetFormat), passThrough(passMatching)
{}

SettingsColorspaceConverter::~SettingsColorspaceConverter() = default;

} // namespace Zelkor::Proc
