#include "StyleSheet.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStyleFactory>

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

QIcon Tinted(const QString& name, const QString& tint)
{
    QIcon icon;
    icon.addFile(SEARCH_PATH + ":" + name + tint + ".svg");
    icon.addFile(SEARCH_PATH + ":" + name + "-disabled.svg", QSize(), QIcon::Disabled);
    return icon;
}

} // namespace

std::optional<StyleSheet> LoadStyleSheet(const QString& nameOrFile, QString& error)
{
    RegisterStyles();
    const QFileInfo info(FileOf(nameOrFile));
    QFile file(info.filePath());
    if (info.isDir() || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        error = QStringLiteral("cannot read the style sheet '%1'").arg(nameOrFile);
        return std::nullopt;
    }
    return StyleSheet{QString::fromUtf8(file.readAll()), info.dir().filePath(info.completeBaseName())};
}

void ApplyStyleSheet(const StyleSheet& sheet)
{
    QDir::setSearchPaths(SEARCH_PATH, {sheet.iconFolder});
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    qApp->setStyleSheet(sheet.text);
}

QIcon StyleIcon(const QString& name)
{
    return Tinted(name, QString());
}

QIcon StyleIconOnAccent(const QString& name)
{
    return Tinted(name, "-on-accent");
}

} // namespace Zelkor::Gallery
