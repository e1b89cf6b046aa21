#include "BuiltInStyleSheets.h"

namespace Zelkor::Examples {

bool IsBuiltInStyleSheet(const QString& name)
{
    return name == "dark" || name == "light";
}

std::optional<ZStyleSheet> LoadStyleSheet(const QString& nameOrFile, QString* error)
{
    if (nameOrFile == "dark")
        return ZStyleSheet::load(":/Styles/Dark.qss", error);
    if (nameOrFile == "light")
        return ZStyleSheet::load(":/Styles/Light.qss", error);
    return ZStyleSheet::load(nameOrFile, error);
}

} // namespace Zelkor::Examples
