#include <UI/Kit/ZWidgetPicker.h>

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

ZWidgetPicker::ZWidgetPicker(QWidget* except, QObject* parent) : QObject(parent), except(except) {}

ZWidgetPicker::~ZWidgetPicker()
{
    if (running)
        QApplication::restoreOverrideCursor();
}

void ZWidgetPicker::start()
{
    if (running)
        return;
    running = true;
    swallowsRelease = false;
    qApp->installEventFilter(this);
    QApplication::setOverrideCursor(Qt::CrossCursor);
}

void ZWidgetPicker::stop()
{
    if (!running)
        return;
    running = false;
    QApplication::restoreOverrideCursor();
    if (!swallowsRelease)
        qApp->removeEventFilter(this);
    Q_EMIT stopped();
}

bool ZWidgetPicker::isPickable(const QWidget* widget) const
{
    // Pop-ups and dialogs are windows of their own, in which Qt sees no descendants.
    const QObject* part = widget;
    while (part && part != except)
        part = part->parent();
    return widget && !part;
}

bool ZWidgetPicker::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::Enter:
        if (running && isPickable(widget))
            Q_EMIT pointed(widget);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (!running && widget) {
            // The release never came, and another one is not meant.
            qApp->removeEventFilter(this);
            break;
        }
        if (!isPickable(widget))
            break;
        event->accept();
        swallowsRelease = true;
        stop();
        Q_EMIT picked(widget);
        return true;
    case QEvent::MouseButtonRelease:
        if (running || !widget)
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
