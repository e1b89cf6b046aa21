#pragma once

#include "PropertyControl.h"

namespace Zelkor::Gallery {

/// Creates a control for a picture: the path of a file and a button that opens a file dialog. `type` is that of the
/// property.
PropertyControl CreatePictureEditor(int type, QWidget* parent, const ValueListener& listener);

} // namespace Zelkor::Gallery
