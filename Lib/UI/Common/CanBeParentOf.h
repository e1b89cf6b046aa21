#pragma once

#include <QWidget>

namespace Zelkor::Vx::UI::Common {

/// Returns whether `widget` may become a child of `parent`: not if it is null, `parent` itself or an ancestor of it,
/// also across windows.
inline bool CanBeParentOf(const QWidget* parent, const QWidget* widget)
{
    while (parent && parent != widget)
        parent = parent->parentWidget();
    return widget && !parent;
}

} // namespace Zelkor::Vx::UI::Common
