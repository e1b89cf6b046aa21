#include <UI/Widgets/AccessiblePopUpButton.h>

#include <UI/Common/TextMarks.h>

namespace Zelkor::Vx::UI {

AccessiblePopUpButton::AccessiblePopUpButton(QAbstractButton* button)
    : QAccessibleWidget(button, QAccessible::ButtonMenu), button(button)
{}

QString AccessiblePopUpButton::text(QAccessible::Text kind) const
{
    QString own = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && own.isEmpty() ? Common::WithoutMnemonic(button->text()) : own;
}

QAccessible::State AccessiblePopUpButton::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = IsPopUpVisible();
    state.collapsed = !state.expanded;
    state.pressed = button->isDown();
    state.checkable = button->isCheckable();
    state.checked = button->isChecked();
    return state;
}

QStringList AccessiblePopUpButton::keyBindingsForAction(const QString& name) const
{
    const QKeySequence keys = button->shortcut();
    return name == pressAction() && !keys.isEmpty() ? QStringList(keys.toString()) : QStringList();
}

} // namespace Zelkor::Vx::UI
