#include "BuiltInStyleSheets.h"

#include <QHash>

namespace Zelkor::Examples {

namespace {

const QHash<QString, QString> SHEETS = {{"dark", "Dark"}, {"light", "Light"}, {"high-contrast", "HighContrast"}};

} // namespace

bool IsBuiltInStyleSheet(const QString& name)
{
    return SHEETS.contains(name);
}

std::optional<ZStyleSheet> LoadStyleSheet(const QString& nameOrFile, QString* error)
{
    const bool isBuiltIn = IsBuiltInStyleSheet(nameOrFile);
    return ZStyleSheet::load(isBuiltIn ? ":/Styles/" + SHEETS[nameOrFile] + ".qss" : nameOrFile, error);
}

} // namespace Zelkor::Examples
