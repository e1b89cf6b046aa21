#pragma once

#include "PropertyControl.h"

namespace Zelkor::Gallery {

/// A control for a picture: the path of a file, and a button that opens a dialog for it. `type` is the property's.
PropertyControl CreatePictureEditor(int type, QWidget* parent, const ValueListener& listener);

} // namespace Zelkor::Gallery
