#include <Support/ModalWatcher.h>

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QPointer>
#include <QTimer>

#include <utility>

namespace Support {

ModalWatcher::ModalWatcher(std::function<void(QWidget*)> act) : act(std::move(act))
{
    qApp->installEventFilter(this);
}

bool ModalWatcher::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Show || !object->isWidgetType())
        return false;
    auto* window = static_cast<QWidget*>(object);
    if (window->isWindow() && (window->isModal() || qobject_cast<QMenu*>(window)))
        QTimer::singleShot(0, this, [this, window = QPointer<QWidget>(window)] {
            if (window)
                act(window);
        });
    return false;
}

void Dismiss(QWidget* window)
{
    if (auto* dialog = qobject_cast<QDialog*>(window))
        dialog->reject();
    else
        window->close();
}

} // namespace Support
