#pragma once

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace Zelkor::Vx::UI::Common {

/// Makes a box layout without margins and spacing, on `parent` or, without one, for nesting. All layouts of the
/// widgets are made here: distances come from style sheets alone.
template<class BoxLayout>
BoxLayout* MakeBoxLayout(QWidget* parent = nullptr)
{
    auto* layout = new BoxLayout(parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

} // namespace Zelkor::Vx::UI::Common
