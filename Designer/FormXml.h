#pragma once

#include <QString>

struct QMetaObject;

namespace Zelkor::Catalogue {
struct Entry;
}

namespace Zelkor::Designer {

/// Whether widgets of this class hold pages, which a form may add to and which are containers themselves.
bool HasPages(const QMetaObject& metaObject);

/// The piece of a form that a new widget starts from: name, size, first properties, first pages, and what it extends.
QString FormXml(const Catalogue::Entry& entry);

} // namespace Zelkor::Designer
