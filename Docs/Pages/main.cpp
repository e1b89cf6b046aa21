#include "StatePictures.h"
#include "WidgetPage.h"

#include <Catalogue/Catalogue.h>
#include <Examples/Support/BuiltInStyleSheets.h>
#include <Examples/Support/Offscreen.h>

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QFile>

#include <glog/logging.h>

#include <map>
#include <tuple>

using namespace Zelkor;
using namespace Zelkor::Documents;

namespace {

const std::pair<Interaction, const char*> INTERACTIONS[] = {{Interaction::HOVER, "Hover"},
                                                            {Interaction::PRESSED, "Pressed"},
                                                            {Interaction::FOCUS, "Focus"},
                                                            {Interaction::OPEN, "Open"}};

bool Write(const QString& name, const QString& text)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0;
}

/// Pictures by file name, one for each style sheet.
using Pictures = std::map<QString, QVector<QImage>>;

void TakePictures(const Catalogue::Entry& entry, Pictures& pictures)
{
    for (int i = 0; i < entry.states.size(); ++i)
        pictures[PictureName(entry, QString::number(i))].append(TakePicture(entry, entry.states[i], Interaction::NONE));
    const QImage plain = pictures[PictureName(entry, QString::number(entry.pictured))].constLast();
    for (const auto& [interaction, name] : INTERACTIONS) {
        const QImage picture = TakePicture(entry, entry.states[entry.pictured], interaction);
        pictures[PictureName(entry, QString(name).toLower())].append(picture == plain ? QImage() : picture);
    }
}

} // namespace

// VxWidgetPages SOURCE FOLDER: writes a page for each widget, and the main page, as Markdown with pictures.
int main(int argc, char* argv[])
{
    google::InitGoogleLogging(argv[0]);
    QApplication application(argc, argv);
    Examples::AdaptToOffscreen();
    QApplication::setCursorFlashTime(0);
    const QString source = application.arguments().value(1);
    const QDir folder(application.arguments().value(2));
    const Sources sources = ReadSources(source);
    if (sources.styleSheets.isEmpty() || !folder.mkpath("."))
        qFatal("usage: VxWidgetPages SOURCE FOLDER");

    Pictures pictures;
    for (const char* sheet : {"dark", "light"}) {
        Examples::LoadStyleSheet(sheet)->apply();
        for (const Catalogue::Entry& entry : Catalogue::Entries())
            TakePictures(entry, pictures);
    }
    for (const auto& [name, pair] : pictures) {
        const QImage joined = JoinPictures(pair);
        if (!joined.isNull() && !joined.save(folder.filePath(name)))
            qFatal("cannot write %s", qPrintable(name));
    }
    for (const Catalogue::Entry& entry : Catalogue::Entries()) {
        QStringList interactions;
        for (const auto& [interaction, name] : INTERACTIONS) {
            if (!JoinPictures(pictures[PictureName(entry, QString(name).toLower())]).isNull())
                interactions.append(name);
        }
        if (!Write(folder.filePath(entry.className + ".md"), PageOf(entry, sources, interactions)))
            qFatal("cannot write the page of %s", qPrintable(entry.className));
    }
    return Write(folder.filePath("MainPage.md"), MainPage()) ? 0 : 1;
}
