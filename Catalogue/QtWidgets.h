#pragma once

#include <Catalogue/Catalogue.h>

namespace Zelkor::Catalogue {

/// Returns an entry that is not among Entries(): its states are groups of all widget classes of Qt Widgets, each widget
/// in its ordinary states. The texts of disabled parts contain "isabled".
const Entry& QtWidgetsEntry();

} // namespace Zelkor::Catalogue
