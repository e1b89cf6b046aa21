#include "StyleSheet.h"

#include <UI/Kit/StyleSheetEditor/StyleSheetFile.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QStyleFactory>
#include <QUuid>

// A resource in a static library has to be registered by hand, from outside of any namespace.
static void RegisterStyles()
{
    Q_INIT_RESOURCE(Styles);
}

namespace Zelkor::Gallery {

namespace {

const QString SEARCH_PATH = QStringLiteral("vxstyle");

QString FileOf(const QString& nameOrFile)
{
    if (nameOrFile == "dark")
        return ":/Styles/Dark.qss";
    if (nameOrFile == "light")
        return ":/Styles/Light.qss";
    return nameOrFile;
}

int appliedSheets = 0; ///< how many there were; icons of an earlier one are out of date
QString iconFolder;    ///< of the last one

// Qt looks for a file that a search path lacks, an icon for a dense screen for instance, in the current folder. Where
// that holds a file of such a name, the sheet goes by a search path of a name that no file has.
QString WithoutFilesOfCurrentFolder(const QString& text)
{
    const QString prefix = SEARCH_PATH + ":";
    if (QDir::current().entryList({prefix + "*"}).isEmpty())
        return text;
    const QString path = SEARCH_PATH + QUuid::createUuid().toString(QUuid::Id128);
    QDir::setSearchPaths(path, {iconFolder});
    return QString(text).replace(prefix, path + ":");
}

/// `stem` is the file of the plain icon without its ending.
QIcon LoadTinted(const QString& stem, const QString& tint)
{
    QIcon icon;
    icon.addFile(stem + tint + ".svg");
    icon.addFile(stem + "-disabled.svg", QSize(), QIcon::Disabled);
    return icon;
}

// An icon that is always the one of the style sheet that is applied, so that nobody has to set it again.
class TintedIconEngine : public QIconEngine
{
public:
    TintedIconEngine(QString name, QString tint) : name(std::move(name)), tint(std::move(tint)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        Current().paint(painter, rect, Qt::AlignCenter, mode, state);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return Current().pixmap(size, mode, state);
    }

    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return Current().actualSize(size, mode, state);
    }

    QIconEngine* clone() const override { return new TintedIconEngine(*this); }

private:
    const QIcon& Current()
    {
        if (loadedFor != appliedSheets) {
            icon = LoadTinted(QDir(iconFolder).filePath(name), tint);
            loadedFor = appliedSheets;
        }
        return icon;
    }

    const QString name;
    const QString tint;
    QIcon icon;
    int loadedFor = -1;
};

} // namespace

std::optional<StyleSheet> LoadStyleSheet(const QString& nameOrFile, QString& error)
{
    RegisterStyles();
    const QFileInfo info(FileOf(nameOrFile));
    namespace StyleSheetFile = Vx::UI::Kit::StyleSheetFile;
    StyleSheetFile::Error why;
    const auto contents = StyleSheetFile::Read(info.filePath(), why);
    if (!contents) {
        error = why.describe();
        return std::nullopt;
    }
    return StyleSheet{contents->text, info.dir().filePath(info.completeBaseName())};
}

void ApplyStyleSheet(const StyleSheet& sheet)
{
    iconFolder = QDir(sheet.iconFolder).absolutePath();
    QDir::setSearchPaths(SEARCH_PATH, {iconFolder});
    ++appliedSheets;
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    qApp->setStyleSheet(WithoutFilesOfCurrentFolder(sheet.text));
}

QIcon BuiltInIcon(const QString& sheet, const QString& name)
{
    RegisterStyles();
    const QFileInfo file(FileOf(sheet));
    return LoadTinted(file.path() + "/" + file.completeBaseName() + "/" + name, QString());
}

QIcon StyleIcon(const QString& name)
{
    return QIcon(new TintedIconEngine(name, QString()));
}

QIcon StyleIconOnAccent(const QString& name)
{
    return QIcon(new TintedIconEngine(name, "-on-accent"));
}

} // namespace Zelkor::Gallery
