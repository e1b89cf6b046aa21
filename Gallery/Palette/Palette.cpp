#include "Palette.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

// Q_INIT_RESOURCE() works outside of namespaces only.
static void RegisterTemplate()
{
    Q_INIT_RESOURCE(GalleryTemplate);
}

namespace Zelkor::Gallery {

namespace {

const char* const FOLDER = ":/Template";
const char* const TEMPLATE = "Template.qss.in";

// As in BuildStyleSheet.cmake.
const QRegularExpression& ColorLine()
{
    static const QRegularExpression line("^([a-z][a-z-]*) = (#[0-9a-f]{6})$");
    return line;
}

QString ReadTemplate(const QString& file)
{
    RegisterTemplate();
    QFile source(QDir(FOLDER).filePath(file));
    return source.open(QIODevice::ReadOnly) ? QString::fromUtf8(source.readAll()) : QString();
}

/// Writes the files of one style sheet. Remembers the first error.
class Writer
{
public:
    Writer(const Palette& palette, QString name) : palette(palette), name(std::move(name)) {}

    QString Fill(QString text, const QString& iconColor)
    {
        text.replace("@icon@", palette.Color(iconColor).name());
        text.replace("@sheet@", name);
        for (const Palette::Group& group : palette.Groups()) {
            for (const QString& color : group.names)
                text.replace('@' + color + '@', palette.Color(color).name());
        }
        const auto missing = QRegularExpression("@[A-Za-z0-9_-]+@").match(text);
        if (missing.hasMatch() && error.isEmpty())
            error = Palette::tr("There is no colour for %1").arg(missing.captured());
        return text;
    }

    void Write(const QString& file, const QString& text)
    {
        QFile target(file);
        const QByteArray bytes = text.toUtf8();
        const bool isWritten = target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size();
        if (!isWritten && error.isEmpty())
            error = file + ": " + target.errorString();
    }

    // Writes an icon also at twice the size, for a device pixel ratio of 2.
    void WriteIcon(const QString& stem, const QString& source, const QString& color)
    {
        QString icon = Fill(source, color);
        Write(stem + ".svg", icon);
        static const QRegularExpression sizes("width=\"([0-9]+)\" height=\"([0-9]+)\"");
        const auto size = sizes.match(icon);
        icon.replace(
            size.capturedStart(), size.capturedLength(),
            QString("width=\"%1\" height=\"%2\"").arg(2 * size.captured(1).toInt()).arg(2 * size.captured(2).toInt()));
        Write(stem + "@2x.svg", icon);
    }

    QString error;

private:
    const Palette& palette;
    const QString name;
};

} // namespace

std::optional<Palette> Palette::Parse(const QString& text, QString* error)
{
    Palette palette;
    palette.lines = QString(text).remove('\r').split('\n');
    while (!palette.lines.isEmpty() && palette.lines.last().trimmed().isEmpty())
        palette.lines.removeLast();
    for (const QString& line : palette.lines) {
        if (line.trimmed().isEmpty() || line.startsWith("//") || ColorLine().match(line).hasMatch())
            continue;
        if (error)
            *error = tr("Not a line of a palette: %1").arg(line);
        return std::nullopt;
    }
    return palette;
}

std::optional<Palette> Palette::Read(const QString& file, QString* error)
{
    QFile source(file);
    QString why;
    std::optional<Palette> palette;
    if (source.open(QIODevice::ReadOnly))
        palette = Parse(QString::fromUtf8(source.readAll()), &why);
    else
        why = source.errorString();
    if (palette) {
        Writer writer(*palette, QString());
        writer.Fill(ReadTemplate(TEMPLATE), "text");
        why = writer.error;
    }
    if (error)
        *error = why.isEmpty() ? QString() : QDir::toNativeSeparators(file) + ": " + why;
    return why.isEmpty() ? palette : std::nullopt;
}

std::optional<Palette> Palette::Beside(const QString& sheet)
{
    const QFileInfo info(sheet);
    return Read(info.dir().filePath(info.completeBaseName() + ".palette"));
}

Palette Palette::BuiltIn(const QString& name)
{
    return Parse(ReadTemplate(name + ".palette")).value_or(Palette());
}

QStringList Palette::BuiltInNames()
{
    RegisterTemplate();
    return QDir(FOLDER).entryList({"*.palette"}).replaceInStrings(".palette", QString());
}

QVector<Palette::Group> Palette::Groups() const
{
    QVector<Group> groups;
    QStringList comment;
    for (const QString& line : lines) {
        const auto color = ColorLine().match(line);
        if (line.startsWith("//")) {
            comment.append(line.mid(2).trimmed());
            continue;
        }
        if (color.hasMatch() && (groups.isEmpty() || !comment.isEmpty()))
            groups.append({comment.join(' '), {}});
        if (color.hasMatch())
            groups.last().names.append(color.captured(1));
        comment.clear();
    }
    return groups;
}

QColor Palette::Color(const QString& name) const
{
    for (const QString& line : lines) {
        if (line.startsWith(name + " = "))
            return QColor(ColorLine().match(line).captured(2));
    }
    return {};
}

void Palette::SetColor(const QString& name, const QColor& color)
{
    for (QString& line : lines) {
        if (line.startsWith(name + " = "))
            line = name + " = " + color.name();
    }
}

QString WriteStyleSheet(const Palette& palette, const QString& name, const QString& folder, QString* error)
{
    Writer writer(palette, name);
    const QDir icons(QDir(folder).filePath(name));
    icons.mkpath(".");
    const QString sheet = QDir(folder).filePath(name + ".qss");
    writer.Write(sheet, writer.Fill(ReadTemplate(TEMPLATE), "text"));
    writer.Write(QDir(folder).filePath(name + ".palette"), palette.Text());
    for (const QString& file : QDir(QDir(FOLDER).filePath("icons")).entryList()) {
        const QString source = ReadTemplate("icons/" + file);
        const QString stem = icons.filePath(file.section('.', 0, 0));
        writer.WriteIcon(stem, source, "text");
        writer.WriteIcon(stem + "-disabled", source, "text-disabled");
        writer.WriteIcon(stem + "-on-accent", source, "on-accent");
    }
    if (error)
        *error = writer.error;
    return writer.error.isEmpty() ? sheet : QString();
}

} // namespace Zelkor::Gallery
