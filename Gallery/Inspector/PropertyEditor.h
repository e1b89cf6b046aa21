#pragma once

#include "PropertyControl.h"

#include <QMetaProperty>

namespace Zelkor::Gallery {

/// A control for a property, chosen by its type: bool, numbers, texts, colours, enums, flags, points, sizes,
/// rectangles, times, and pictures by file. Owned by `parent`. Pictures that cannot be read are not reported.
PropertyControl CreatePropertyEditor(const QMetaProperty& property, QWidget* parent, const ValueListener& listener);

} // namespace Zelkor::Gallery
