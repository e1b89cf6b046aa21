#pragma once

#include <QCoreApplication>
#include <QSizePolicy>

class QWidget;

namespace Zelkor::Gallery {

/// Translates the texts of the property controls.
class Editors
{
    Q_DECLARE_TR_FUNCTIONS(Editors)
};

/// The decimals of a floating-point property.
constexpr int DECIMALS = 4;

/// Creates a spin box for the property panel, owned by `parent`.
template<class SpinBox>
SpinBox* CreateSpinBox(QWidget* parent, double smallest, double largest)
{
    auto* box = new SpinBox(parent);
    box->setRange(smallest, largest);
    // The wheel scrolls the panel; a number takes effect when it is complete.
    box->setEditableInFocus(true);
    box->setKeyboardTracking(false);
    // The size hint would fit the largest number of the range.
    box->setMinimumWidth(0);
    box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return box;
}

} // namespace Zelkor::Gallery
