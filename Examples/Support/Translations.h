#pragma once

#include <QString>
#include <QVector>

#include <memory>
#include <vector>

class QTranslator;

namespace Zelkor::Examples {

struct Language
{
    QString code; ///< as in the file names of translations
    QString name; ///< in the language itself
};

/// Returns the languages with translations, that of the source texts first.
const QVector<Language>& AllLanguages();

/// Installs the translations of a program, the stand-in, the library and Qt. GUI thread.
class Translations
{
public:
    /// `program` is the base name of the program's own translation files.
    explicit Translations(const QString& program);
    ~Translations();

    /// Switches the application to a language; every widget gets a `QEvent::LanguageChange`. Returns false and falls
    /// back to the source texts when the program has no translation.
    bool Use(const QString& code);

private:
    bool Install(const QString& code);

    const QString program;
    std::vector<std::unique_ptr<QTranslator>> translators;
};

} // namespace Zelkor::Examples
