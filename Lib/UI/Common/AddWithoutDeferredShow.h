#pragma once

#include <QBoxLayout>
#include <QWidget>

namespace Zelkor::Vx::UI::Common {

/// Appends `widget` to the layout of a widget and shows it, unless it was hidden explicitly.
///
/// QLayout shows a new widget of a visible parent by a queued call, and each of these calls activates the layout again:
/// adding many widgets is quadratic. This function shows the widget first, so that all are laid out at once.
inline void AddWithoutDeferredShow(QBoxLayout* layout, QWidget* widget)
{
    const bool isHiddenExplicitly = widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (widget->parentWidget() != layout->parentWidget())
        widget->setParent(layout->parentWidget());
    if (!isHiddenExplicitly) {
        layout->setEnabled(false);
        widget->show();
        layout->setEnabled(true);
    }
    layout->addWidget(widget);
}

} // namespace Zelkor::Vx::UI::Common
