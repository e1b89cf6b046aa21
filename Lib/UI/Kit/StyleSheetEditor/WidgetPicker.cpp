#include <UI/Kit/StyleSheetEditor/WidgetPicker.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace Zelkor::Vx::UI::Kit {

namespace {

// Presses are delivered to a QWindow first, which moves the focus, and then to a widget.
QWidget* WidgetAt(QWindow* window, const QPoint& place)
{
    QWidget* widget = QWidget::find(window->winId());
    // A pop-up also gets presses outside of it.
    if (!widget || !widget->rect().contains(place))
        return nullptr;
    QWidget* child = widget->childAt(place);
    return child ? child : widget;
}

} // namespace

WidgetPicker::WidgetPicker(QWidget* except, QObject* parent) : QObject(parent), except(except) {}

WidgetPicker::~WidgetPicker()
{
    if (running)
        QApplication::restoreOverrideCursor();
}

void WidgetPicker::start()
{
    if (running)
        return;
    running = true;
    swallowsRelease = false;
    qApp->installEventFilter(this);
    QApplication::setOverrideCursor(Qt::CrossCursor);
}

void WidgetPicker::stop()
{
    if (!running)
        return;
    running = false;
    QApplication::restoreOverrideCursor();
    if (!swallowsRelease)
        qApp->removeEventFilter(this);
    Q_EMIT stopped();
}

bool WidgetPicker::isPickable(const QWidget* widget) const
{
    // QWidget::isAncestorOf() does not cross windows, such as pop-ups and dialogs.
    const QObject* part = widget;
    while (part && part != except)
        part = part->parent();
    return widget && !part;
}

bool WidgetPicker::eventFilter(QObject* watched, QEvent* event)
{
    QPointer<QWidget> widget = qobject_cast<QWidget*>(watched);
    auto* window = qobject_cast<QWindow*>(watched);
    const QPointer<WidgetPicker> self(this);
    switch (event->type()) {
    case QEvent::Enter:
        if (!running || !isPickable(widget))
            break;
        Q_EMIT pointed(widget);
        return !widget; // a slot may have deleted it
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (!running && widget) {
            // The release was lost, and the next one belongs to this press.
            qApp->removeEventFilter(this);
            break;
        }
        if (window)
            widget = WidgetAt(window, static_cast<QMouseEvent*>(event)->pos());
        if (!isPickable(widget))
            break;
        event->accept();
        swallowsRelease = true;
        isReleasedInWindow = window;
        stop();
        if (self && widget)
            Q_EMIT picked(widget);
        return true;
    case QEvent::MouseButtonRelease:
        if (running || !(isReleasedInWindow ? watched == window : watched == widget))
            break;
        event->accept();
        qApp->removeEventFilter(this);
        return true;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        if (!running || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
            break;
        event->accept();
        if (event->type() == QEvent::KeyPress)
            stop();
        return true;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zelkor::Vx::UI::Kit
