#pragma once

#include <QMap>
#include <QString>

namespace Zelkor::Catalogue {
struct Entry;
}

namespace Zelkor::Documents {

/// Where the pages take their texts from.
struct Sources
{
    QString folder;                     ///< of the source tree
    QMap<QString, QString> styleSheets; ///< the sections of the style sheet reference, by qualified class name
};

/// Reads the style sheet reference. Returns no sections if it cannot be read.
Sources ReadSources(const QString& folder);

/// Returns the name of a picture, without folder: of a state by its index, or of an interaction.
QString PictureName(const Catalogue::Entry& entry, const QString& what);

/// Returns the page of a widget in Doxygen's Markdown. `interactions` are those with pictures.
QString PageOf(const Catalogue::Entry& entry, const Sources& sources, const QStringList& interactions);

/// Returns the main page, with links to all pages.
QString MainPage();

} // namespace Zelkor::Documents
