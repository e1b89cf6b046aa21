#include "BuiltInStyleSheets.h"

#include <QColor>
#include <QDir>
#include <QHash>
#include <QRegularExpression>

namespace Zelkor::Examples {

namespace {

const QHash<QString, QString> SHEETS = {
    {"dark", ":/Styles/Dark.qss"}, {"light", ":/Styles/Light.qss"}, {"high-contrast", ":/Styles/HighContrast.qss"}};

// A sheet that was saved without icons takes those of the linked sheet that is as light as its windows.
QString IconFolderFor(const QString& text)
{
    static const QRegularExpression windowColor("qproperty-Window: (#[0-9A-Fa-f]+)");
    const QColor color(windowColor.match(text).captured(1));
    return color.isValid() && color.lightness() < 128 ? ":/Styles/Dark" : ":/Styles/Light";
}

} // namespace

bool IsBuiltInStyleSheet(const QString& name)
{
    return name == "system" || SHEETS.contains(name);
}

bool ApplyStyleSheet(const QString& nameOrFile, QString* error)
{
    if (nameOrFile == "system")
        return ZStyleSheet::followSystem(SHEETS["light"], SHEETS["dark"], error);
    const auto sheet = LoadStyleSheet(nameOrFile, error);
    if (sheet)
        sheet->apply();
    return sheet.has_value();
}

std::optional<ZStyleSheet> LoadStyleSheet(const QString& nameOrFile, QString* error)
{
    auto sheet = ZStyleSheet::load(SHEETS.value(nameOrFile, nameOrFile), error);
    if (sheet && !QDir(sheet->iconFolder).exists())
        sheet->iconFolder = IconFolderFor(sheet->text);
    return sheet;
}

} // namespace Zelkor::Examples
