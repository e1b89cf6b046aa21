#pragma once

#include <QString>

namespace Zelkor::Catalogue {

struct Entry;
struct State;

/// Returns a form with the widget of a state, which Qt Designer pastes: its properties that differ from those of a new
/// widget, its items and its pages. Empty if forms cannot contain the widget. Creates widgets.
QString FormOf(const Entry& entry, const State& state);

} // namespace Zelkor::Catalogue
