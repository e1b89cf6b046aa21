#include <UI/Kit/StyleSheetEditor/WidgetPicker.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>
#include <QWindow>

namespace Zelkor::Vx::UI::Kit {

namespace {

constexpr int OUTLINE_WIDTH = 2;

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

/// A frame over a widget, in the window of the widget.
class Outline : public QWidget
{
public:
    explicit Outline(const QWidget* widget) : QWidget(widget->window())
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(QRect(widget->mapTo(widget->window(), QPoint()), widget->size()));
        raise();
        show();
    }

protected:
    // Two colours, to be visible on any background.
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2 * OUTLINE_WIDTH));
        painter.drawRect(rect());
        painter.setPen(Qt::white);
        painter.drawRect(rect().adjusted(OUTLINE_WIDTH, OUTLINE_WIDTH, -OUTLINE_WIDTH - 1, -OUTLINE_WIDTH - 1));
    }
};

} // namespace

WidgetPicker::WidgetPicker(QWidget* except, QObject* parent) : QObject(parent), except(except) {}

WidgetPicker::~WidgetPicker()
{
    if (running)
        QApplication::restoreOverrideCursor();
    delete outline;
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
    pointTo(nullptr);
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

void WidgetPicker::pointTo(QWidget* widget)
{
    if (pointedWidget == widget)
        return;
    pointedWidget = widget;
    delete outline;
    if (!widget)
        return;
    outline = new Outline(widget);
    Q_EMIT pointed(widget);
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
        pointTo(widget);
        return !widget; // a slot may have deleted it
    case QEvent::MouseMove:
        // Widgets get no event when the pointer leaves one of their children.
        if (!running || !window)
            break;
        widget = WidgetAt(window, static_cast<QMouseEvent*>(event)->pos());
        pointTo(isPickable(widget) ? widget.data() : nullptr);
        return !self;
    case QEvent::Leave:
        if (running && window)
            pointTo(nullptr);
        break;
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
