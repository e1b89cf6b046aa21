#pragma once

#include "PropertyControl.h"

#include <QMetaProperty>

namespace Zelkor::Gallery {

/// Creates a control for a property by its type: bool, numbers, texts, colours, enums, flags, points, sizes,
/// rectangles, times, and pictures by file. Owned by `parent`. Ignores pictures that cannot be read.
PropertyControl CreatePropertyEditor(const QMetaProperty& property, QWidget* parent, const ValueListener& listener);

} // namespace Zelkor::Gallery
