#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace Zelkor::Gallery {

/// Finds pages by what is on them.
class PageSearch
{
public:
    /// Why a page was found, the best reason first.
    enum Reason { NAME, DESCRIPTION, MEMBER };

    struct Hit
    {
        QString page;
        Reason reason;
        QString member; ///< the property, signal or object name
    };

    /// Returns the pages that contain each word of `text`, in the order of their reasons. The first search creates a
    /// widget of each class.
    QVector<Hit> Find(const QString& text);

    /// Forgets the descriptions, which were translated.
    void Reset() { pages.clear(); }

private:
    struct Page
    {
        QString name;
        QString description; ///< with group and keywords
        QStringList members;
    };

    void Fill();

    QVector<Page> pages;
};

} // namespace Zelkor::Gallery
