#pragma once

namespace Zelkor::Examples {

/// On the offscreen platform, suppresses warnings about unsupported requests and sets the font size of a usual desktop.
/// Does nothing on other platforms. Needs a `QApplication`.
void AdaptToOffscreen();

} // namespace Zelkor::Examples
