#pragma once

namespace Zelkor::Examples {

/// Scales windows by the ratio of their screen as it is: 150 % is not rounded to 200 %. Call it before the
/// `QApplication` is made.
void EnableHighDpiScaling();

} // namespace Zelkor::Examples
