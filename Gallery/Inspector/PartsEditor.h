#pragma once

#include "PropertyControl.h"

namespace Zelkor::Gallery {

/// A control for a point, a size or a rectangle: one spin box for each of its numbers. `type` is the property's.
PropertyControl CreatePartsEditor(int type, QWidget* parent, const ValueListener& listener);

} // namespace Zelkor::Gallery
