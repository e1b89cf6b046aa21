#pragma once

#include <QString>
#include <QVector>

#include <memory>
#include <vector>

class QTranslator;

namespace Zelkor::Gallery {

struct Language
{
    QString code; ///< as in the names of the translation files
    QString name; ///< in the language itself
};

/// The languages that there are texts for; the first is the one in which the texts are written.
const QVector<Language>& AllLanguages();

/// The texts of the program in another language: those of the gallery, of the library and of Qt. GUI thread.
class Translations
{
public:
    Translations();
    ~Translations();

    /// Has the application speak a language; every widget gets its `QEvent::LanguageChange`. False, and the language
    /// of the texts as they are written, when there are no texts for it.
    bool Use(const QString& code);

private:
    bool Install(const QString& code);

    std::vector<std::unique_ptr<QTranslator>> translators;
};

} // namespace Zelkor::Gallery
