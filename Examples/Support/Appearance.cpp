#include "Appearance.h"
#include "BuiltInStyleSheets.h"

#include <QApplication>

namespace Zelkor::Examples {

Appearance::Appearance(const QString& program, QObject* parent)
    : QObject(parent), translations(program), language(AllLanguages().first().code)
{}

bool Appearance::SetLanguage(const QString& code)
{
    if (language == code)
        return true;
    // Qt 5 replaces the direction by that of the translators when these change.
    const Qt::LayoutDirection direction = QApplication::layoutDirection();
    const bool found = translations.Use(code);
    QApplication::setLayoutDirection(direction);
    language = found ? code : AllLanguages().first().code;
    Q_EMIT LanguageChanged(language);
    return found;
}

QVector<Style> Appearance::AllStyles()
{
    return {
        {"system", tr("System")}, {"dark", tr("Dark")}, {"light", tr("Light")}, {"high-contrast", tr("High contrast")}};
}

bool Appearance::SetStyle(const QString& nameOrFile, QString* error)
{
    if (!ApplyStyleSheet(nameOrFile, error))
        return false;
    style = nameOrFile;
    const QString name = IsBuiltInStyleSheet(nameOrFile) ? nameOrFile : QString();
    if (styleName != name) {
        styleName = name;
        Q_EMIT StyleNameChanged(name);
    }
    return true;
}

} // namespace Zelkor::Examples
