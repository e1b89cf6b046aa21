#pragma once

namespace Zelkor::Proc::ImplNames {

/// Lets a factory choose the implementation.
inline constexpr char DEFAULT[] = "Default";

} // namespace Zelkor::Proc::ImplNames
