#pragma once

#include <QString>

struct QMetaObject;

namespace Zelkor::Catalogue {
struct Entry;
}

namespace Zelkor::Designer {

/// Returns whether widgets of this class have pages that a form can add.
bool HasPages(const QMetaObject& metaObject);

/// Returns whether new widgets of this class show nothing, because code has to fill them.
bool IsBlank(const QMetaObject& metaObject);

/// Returns the form XML of a new widget: name, size, properties, pages and base class.
QString FormXml(const Catalogue::Entry& entry);

} // namespace Zelkor::Designer
