#pragma once

#include <QCoreApplication>
#include <QSizePolicy>

class QWidget;

namespace Zelkor::Gallery {

/// The texts of the controls for properties, for translation.
class Editors
{
    Q_DECLARE_TR_FUNCTIONS(Editors)
};

/// Of a number that need not be whole.
constexpr int DECIMALS = 4;

/// A spin box of the kit for the list of properties, owned by the parent.
template<class SpinBox>
SpinBox* CreateSpinBox(QWidget* parent, double smallest, double largest)
{
    auto* box = new SpinBox(parent);
    box->setRange(smallest, largest);
    // In a list that scrolls, the wheel is for the list; and half a number is no value.
    box->setEditableInFocus(true);
    box->setKeyboardTracking(false);
    // Numbers of any length are shorter than the range.
    box->setMinimumWidth(0);
    box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return box;
}

} // namespace Zelkor::Gallery
