#include "Translations.h"

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>

namespace Zelkor::Examples {

namespace {

QString QtTranslationFolder()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

// The build folder, the installed tree and the folder of Qt's translations.
QStringList TranslationFolders()
{
    const QDir program(QApplication::applicationDirPath());
    return {program.filePath("../Translations"), program.filePath("../" VX_DATA_FOLDER "/Translations"),
            QtTranslationFolder()};
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

Translations::Translations(const QString& program) : program(program) {}

Translations::~Translations() = default;

bool Translations::Use(const QString& code)
{
    translators.clear();
    return code == AllLanguages().first().code || Install(code);
}

bool Translations::Install(const QString& code)
{
    bool found = false;
    for (const QString& name :
         {QStringLiteral("qtbase"), QStringLiteral("VxUiWidgets"), QStringLiteral("VxHost"), program}) {
        auto translator = Load(name + "_" + code);
        // Depends on the last one, that of the program. Qt's need not be installed.
        found = translator != nullptr;
        if (found) {
            QApplication::installTranslator(translator.get());
            translators.push_back(std::move(translator));
        }
    }
    return found;
}

} // namespace Zelkor::Examples
