#pragma once

#include <QWidget>

#include <functional>

namespace Support {

/// While it lives, calls `act` for every modal dialog and menu that opens, out of the event loop: from inside the one
/// that the dialog or menu runs, if it does, so that nobody waits for it.
class ModalWatcher : public QObject
{
public:
    explicit ModalWatcher(std::function<void(QWidget*)> act);

private:
    bool eventFilter(QObject* object, QEvent* event) override;

    std::function<void(QWidget*)> act;
};

/// Closes a dialog without accepting it, a menu without choosing.
void Dismiss(QWidget* window);

} // namespace Support
