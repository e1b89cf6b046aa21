#pragma once

#include <QColor>
#include <QObject>
#include <QString>

namespace Zelkor::Gallery {

/// What the person has set in the settings dialog. Knows no widget. GUI thread.
class Preferences : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The code of a language, see `AllLanguages`.
    QString Language() const { return language; }
    void SetLanguage(const QString& code);

    /// "dark", "light", or empty for a sheet that the command line brought.
    QString StyleName() const { return styleName; }
    void SetStyleName(const QString& name);

    /// Seconds from the click on the record button to the recording.
    int countdownSeconds = 3;

    /// Index of the quality, from the smallest file on.
    int quality = 2;

    /// The disc around the pointer; the diameter is in pixels.
    QColor highlightColor{255, 214, 0, 200};
    int highlightDiameter = 56;

Q_SIGNALS:
    void LanguageChanged(const QString& code);
    void StyleNameChanged(const QString& name);

private:
    QString language = QStringLiteral("en");
    QString styleName;
};

} // namespace Zelkor::Gallery
