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

/// Decimals of a floating-point property.
constexpr int DECIMALS = 4;

/// A spin box for the list of properties, owned by `parent`.
template<class SpinBox>
SpinBox* CreateSpinBox(QWidget* parent, double smallest, double largest)
{
    auto* box = new SpinBox(parent);
    box->setRange(smallest, largest);
    // The wheel scrolls the list, and a number that is still being typed is not a value yet.
    box->setEditableInFocus(true);
    box->setKeyboardTracking(false);
    // The hint covers the whole range, which no value in use needs.
    box->setMinimumWidth(0);
    box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return box;
}

} // namespace Zelkor::Gallery
