#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace Zelkor::Gallery {

/// The colours of a style sheet as a palette file, from which the build makes the sheet. Setting a colour keeps
/// comments and order.
class Palette
{
    Q_DECLARE_TR_FUNCTIONS(Palette)

public:
    /// The colours below one comment.
    struct Group
    {
        QString comment;
        QStringList names;
    };

    /// Reads the text of a palette file. Returns nothing and sets `error` for a line that the build rejects.
    static std::optional<Palette> Parse(const QString& text, QString* error = nullptr);

    /// Reads a palette file. Returns nothing and sets `error` if it cannot be read, or lacks a colour of the style
    /// sheet.
    static std::optional<Palette> Read(const QString& file, QString* error = nullptr);

    /// Reads the palette file beside a style sheet from a file. Returns nothing if there is none.
    static std::optional<Palette> Beside(const QString& sheet);

    /// Reads a palette that is linked into the program, for instance "Dark".
    static Palette BuiltIn(const QString& name);
    static QStringList BuiltInNames();

    QVector<Group> Groups() const;
    QColor Color(const QString& name) const;

    /// Sets an opaque colour. Ignores unknown names.
    void SetColor(const QString& name, const QColor& color);

    /// The text of the palette file.
    QString Text() const { return lines.join('\n') + '\n'; }

private:
    QStringList lines;
};

/// Writes the style sheet NAME.qss with its icons in the colours of a palette to a folder, as the build does, and
/// NAME.palette. Returns the path of the sheet; an empty text and `error` if a file cannot be written or a colour is
/// missing.
QString WriteStyleSheet(const Palette& palette, const QString& name, const QString& folder, QString* error = nullptr);

} // namespace Zelkor::Gallery
