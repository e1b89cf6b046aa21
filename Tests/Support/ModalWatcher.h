#pragma once

#include <QWidget>

#include <functional>

namespace Support {

/// Calls `act` from the event loop for each modal dialog and menu that opens, so that tests can close it while its
/// `exec()` blocks.
class ModalWatcher : public QObject
{
public:
    explicit ModalWatcher(std::function<void(QWidget*)> act);

private:
    bool eventFilter(QObject* object, QEvent* event) override;

    std::function<void(QWidget*)> act;
};

/// Rejects a dialog or closes a menu.
void Dismiss(QWidget* window);

} // namespace Support
