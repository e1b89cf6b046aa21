#include "Preferences.h"

namespace Zelkor::Gallery {

void Preferences::SetLanguage(const QString& code)
{
    if (language == code)
        return;
    language = code;
    Q_EMIT LanguageChanged(code);
}

void Preferences::SetStyleName(const QString& name)
{
    if (styleName == name)
        return;
    styleName = name;
    Q_EMIT StyleNameChanged(name);
}

} // namespace Zelkor::Gallery
