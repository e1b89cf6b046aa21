#pragma once

namespace Zelkor::Proc::ImplNames {

/// Asks a factory for its own choice among several implementations.
inline constexpr char DEFAULT[] = "Default";

} // namespace Zelkor::Proc::ImplNames
