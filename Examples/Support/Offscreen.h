#pragma once

namespace Zelkor::Examples {

/// Without a window system: drops the warnings about requests that it would handle, and sets the font size of a usual
/// desktop. Does nothing on other platforms. Needs a `QApplication`.
void AdaptToOffscreen();

} // namespace Zelkor::Examples
