#include "Languages.h"
#include "Catalogue.h"

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>

namespace Zelkor::Gallery {

namespace {

// Beside the program in the build folder, or where an installed program has its data.
QStringList TranslationFolders()
{
    const QDir program(QApplication::applicationDirPath());
    return {program.filePath("../Translations"), program.filePath("../share/VxUiWidgets/Translations"),
            QLibraryInfo::location(QLibraryInfo::TranslationsPath)};
}

std::unique_ptr<QTranslator> Load(const QString& file)
{
    auto translator = std::make_unique<QTranslator>();
    for (const QString& folder : TranslationFolders()) {
        if (translator->load(file, folder))
            return translator;
    }
    return nullptr;
}

} // namespace

const QVector<Language>& AllLanguages()
{
    static const QVector<Language> languages = {
        {QStringLiteral("en"), QStringLiteral("English")},
        {QStringLiteral("de"), QStringLiteral("Deutsch")},
        {QStringLiteral("fr"), QStringLiteral("Français")},
        {QStringLiteral("ja"), QStringLiteral("日本語")},
    };
    return languages;
}

Translations::Translations() = default;

Translations::~Translations() = default;

bool Translations::Use(const QString& code)
{
    translators.clear();
    bool found = code == AllLanguages().first().code;
    if (!found)
        found = Install(code);
    RetranslateEntries();
    return found;
}

bool Translations::Install(const QString& code)
{
    bool found = false;
    for (const char* file : {"qtbase_", "VxUiWidgets_", "VxGallery_"}) {
        auto translator = Load(file + code);
        // The last ones count. Those of Qt may not be installed; its own buttons then stay as they are.
        found = translator != nullptr;
        if (found) {
            QApplication::installTranslator(translator.get());
            translators.push_back(std::move(translator));
        }
    }
    return found;
}

} // namespace Zelkor::Gallery
