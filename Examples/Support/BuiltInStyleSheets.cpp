#include "BuiltInStyleSheets.h"

// Q_INIT_RESOURCE() works outside of namespaces only.
static void RegisterStyles()
{
    Q_INIT_RESOURCE(Styles);
}

namespace Zelkor::Examples {

bool IsBuiltInStyleSheet(const QString& name)
{
    return name == "dark" || name == "light";
}

std::optional<ZStyleSheet> LoadStyleSheet(const QString& nameOrFile, QString* error)
{
    RegisterStyles();
    if (nameOrFile == "dark")
        return ZStyleSheet::load(":/Styles/Dark.qss", error);
    if (nameOrFile == "light")
        return ZStyleSheet::load(":/Styles/Light.qss", error);
    return ZStyleSheet::load(nameOrFile, error);
}

} // namespace Zelkor::Examples
