#include "BuiltInStyleSheets.h"

#include <QHash>

namespace Zelkor::Examples {

namespace {

const QHash<QString, QString> SHEETS = {
    {"dark", ":/Styles/Dark.qss"}, {"light", ":/Styles/Light.qss"}, {"high-contrast", ":/Styles/HighContrast.qss"}};

} // namespace

bool IsBuiltInStyleSheet(const QString& name)
{
    return name == "system" || SHEETS.contains(name);
}

bool ApplyStyleSheet(const QString& nameOrFile, QString* error)
{
    if (nameOrFile == "system")
        return ZStyleSheet::followSystem(SHEETS["light"], SHEETS["dark"], error);
    return ZStyleSheet::applyFile(SHEETS.value(nameOrFile, nameOrFile), error);
}

std::optional<ZStyleSheet> LoadStyleSheet(const QString& nameOrFile, QString* error)
{
    return ZStyleSheet::load(SHEETS.value(nameOrFile, nameOrFile), error);
}

} // namespace Zelkor::Examples
