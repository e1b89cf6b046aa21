#include <UI/Kit/ZSpinBox.h>

#include <UI/Common/WheelPolicy.h>

using namespace Zelkor::Vx::UI;

ZSpinBox::ZSpinBox(QWidget* parent) : QSpinBox(parent) {}

void ZSpinBox::setEditableInFocus(bool on)
{
    if (editableInFocus == on)
        return;
    editableInFocus = on;
    Common::SetWheelFocusEnabled(*this, !on);
}

void ZSpinBox::wheelEvent(QWheelEvent* event)
{
    if (Common::AcceptWheelEvent(*this, *event, editableInFocus))
        QSpinBox::wheelEvent(event);
}
