#pragma once

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace Zelkor::Vx::UI::Common {

/// Returns a box layout without margins and spacing, installed on `parent` or, without one, for nesting. All widgets of
/// the library use it, so that style sheets alone set distances.
template<class BoxLayout>
BoxLayout* MakeBoxLayout(QWidget* parent = nullptr)
{
    auto* layout = new BoxLayout(parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

} // namespace Zelkor::Vx::UI::Common
