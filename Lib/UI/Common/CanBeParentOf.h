#pragma once

#include <QWidget>

namespace Zelkor::Vx::UI::Common {

/// Returns false for null, for `container`, and for what `container` lies in, also across windows: as a child of
/// `container`, such a widget would be a parent of its own parent.
inline bool CanBeParentOf(const QWidget* container, const QWidget* widget)
{
    while (container && container != widget)
        container = container->parentWidget();
    return widget && !container;
}

} // namespace Zelkor::Vx::UI::Common
