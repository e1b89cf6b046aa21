#pragma once

#include "PropertyControl.h"

namespace Zelkor::Gallery {

/// Creates a control for a point, size or rectangle with one spin box per number. `type` is that of the property.
PropertyControl CreatePartsEditor(int type, QWidget* parent, const ValueListener& listener);

} // namespace Zelkor::Gallery
