#pragma once

#include <QBoxLayout>
#include <QWidget>

namespace Zelkor::Vx::UI::Common {

/// Puts `widget` at the end of a widget's layout and shows it, unless somebody hid it.
///
/// Left to itself, a visible layout shows its new widgets later, one by one, and each of them has everything laid out
/// again: many widgets then take time with their square. Shown before they are in, they are laid out together.
inline void AddWithoutDeferredShow(QBoxLayout* layout, QWidget* widget)
{
    const bool isMeantToBeHidden = widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (widget->parentWidget() != layout->parentWidget())
        widget->setParent(layout->parentWidget());
    if (!isMeantToBeHidden) {
        layout->setEnabled(false);
        widget->show();
        layout->setEnabled(true);
    }
    layout->addWidget(widget);
}

} // namespace Zelkor::Vx::UI::Common
