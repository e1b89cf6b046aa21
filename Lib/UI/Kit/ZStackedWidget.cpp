#include <UI/Kit/ZStackedWidget.h>

ZStackedWidget::ZStackedWidget(QWidget* parent) : QStackedWidget(parent)
{
    connect(this, &QStackedWidget::currentChanged, this, &ZStackedWidget::fitToContent);
}

void ZStackedWidget::setAutoFit(bool on)
{
    autoFit = on;
    fitToContent();
}

// The minimum of the page, so that the stack does not displace its neighbours in a panel.
QSize ZStackedWidget::sizeHint() const
{
    return autoFit && currentWidget() ? currentWidget()->minimumSizeHint() : QFrame::sizeHint();
}

QSize ZStackedWidget::minimumSizeHint() const
{
    return autoFit && currentWidget() ? currentWidget()->minimumSizeHint() : QWidget::minimumSizeHint();
}

void ZStackedWidget::fitToContent()
{
    if (autoFit)
        updateGeometry();
}

void ZStackedWidget::showEvent(QShowEvent* event)
{
    fitToContent();
    QWidget::showEvent(event);
}
