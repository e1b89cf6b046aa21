#pragma once

#include "Translations.h"

#include <QObject>
#include <QString>
#include <QVector>

namespace Zelkor::Examples {

/// A style sheet that is linked into the program.
struct Style
{
    QString name;  ///< for `Appearance::SetStyle`
    QString title; ///< in the current language
};

/// Language and style sheet of the application, switched at run time. GUI thread.
class Appearance : public QObject
{
    Q_OBJECT

public:
    /// `program` is the base name of the program's own translation files: "VxGallery" for VxGallery_de.qm.
    explicit Appearance(const QString& program, QObject* parent = nullptr);

    /// The code of the current language, see `AllLanguages`.
    QString Language() const { return language; }

    /// Returns false and falls back to English when there are no translations for `code`.
    bool SetLanguage(const QString& code);

    /// Returns the styles that the user can choose from. The first one, "system", follows the light or dark setting of
    /// the system.
    static QVector<Style> AllStyles();

    /// The name of one of these, or empty for a style sheet from a file.
    QString StyleName() const { return styleName; }

    /// The name or file of the current style sheet.
    QString CurrentStyle() const { return style; }

    /// Applies "system", or a style sheet, see `LoadStyleSheet`. Returns false, sets `error` and keeps the current one
    /// when it cannot be read.
    bool SetStyle(const QString& nameOrFile, QString* error = nullptr);

Q_SIGNALS:
    void LanguageChanged(const QString& code);
    void StyleNameChanged(const QString& name);

private:
    Translations translations;
    QString language;
    QString style;
    QString styleName;
};

} // namespace Zelkor::Examples
