#include "Catalogue.h"

#include <QCoreApplication>

namespace Zelkor::Gallery {

QVector<Entry> TimeEntries()
{
    return {};
}

} // namespace Zelkor::Gallery
