#pragma once

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QTimer>

#include <functional>

namespace Support {

/// Calls `act` from the event loop for each modal dialog and menu that opens, so that tests can close it while its
/// `exec()` blocks.
class ModalWatcher : public QObject
{
public:
    explicit ModalWatcher(std::function<void(QWidget*)> act) : act(std::move(act)) { qApp->installEventFilter(this); }

private:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* window = qobject_cast<QWidget*>(object);
        if (event->type() == QEvent::Show && window && window->isWindow() &&
            (window->isModal() || qobject_cast<QMenu*>(window)))
            QTimer::singleShot(0, this, [this, window = QPointer<QWidget>(window)] {
                if (window)
                    act(window);
            });
        return false;
    }

    std::function<void(QWidget*)> act;
};

/// Closes a menu or a dialog, which rejects it.
inline void Dismiss(QWidget* window)
{
    window->close();
}

} // namespace Support
