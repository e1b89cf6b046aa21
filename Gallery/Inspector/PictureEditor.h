#pragma once

#include "PropertyEditor.h"

namespace Zelkor::Gallery {

/// A control for a picture: the path of a file, and a button that opens a dialog for it. `type` is the property's.
PropertyEditor CreatePictureEditor(int type, QWidget* parent, const ValueListener& listener);

} // namespace Zelkor::Gallery
