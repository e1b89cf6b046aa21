#include "Placeholder.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace Zelkor::Designer {

namespace {

constexpr int TEXT_MARGIN = 4;

bool IsEdited(const QWidget* widget)
{
    while (widget && !widget->inherits("QDesignerFormWindowInterface"))
        widget = widget->parentWidget();
    return widget;
}

class Placeholder : public QObject
{
public:
    Placeholder(QWidget* widget, const QString& text) : QObject(widget), text(text)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* widget = static_cast<QWidget*>(watched);
        if (event->type() != QEvent::Paint || !IsEdited(widget))
            return false;
        // Paints after the widget, and thus over it.
        widget->removeEventFilter(this);
        QCoreApplication::sendEvent(widget, event);
        widget->installEventFilter(this);
        QPainter painter(widget);
        painter.setPen(QPen(widget->palette().color(QPalette::Disabled, QPalette::WindowText), 1, Qt::DashLine));
        painter.drawRect(widget->rect().adjusted(0, 0, -1, -1));
        const QRect room = widget->rect().adjusted(TEXT_MARGIN, 0, -TEXT_MARGIN, 0);
        painter.drawText(room, Qt::AlignCenter, widget->fontMetrics().elidedText(text, Qt::ElideRight, room.width()));
        return true;
    }

private:
    const QString text;
};

} // namespace

void ShowPlaceholder(QWidget* widget, const QString& text)
{
    new Placeholder(widget, text);
}

} // namespace Zelkor::Designer
