#pragma once

#include <QAbstractButton>
#include <QAccessibleWidget>

namespace Zelkor::Vx::UI {

/// Exposes a button that opens a pop-up as a button menu, with the state of the pop-up. Internal.
///
/// Qt exposes a checkable button as a check box, keeps the mnemonic markers in its name, and reports no expanded state.
class AccessiblePopUpButton : public QAccessibleWidget
{
public:
    explicit AccessiblePopUpButton(QAbstractButton* button);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList keyBindingsForAction(const QString& name) const override;

protected:
    virtual bool IsPopUpVisible() const = 0;

private:
    QAbstractButton* button;
};

} // namespace Zelkor::Vx::UI
