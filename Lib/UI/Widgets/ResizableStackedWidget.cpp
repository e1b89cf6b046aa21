#include <UI/Widgets/ResizableStackedWidget.h>

#include <QPointer>

ResizableStackedWidget::ResizableStackedWidget(QWidget* parent) : QStackedWidget(parent)
{
    connect(this, &QStackedWidget::currentChanged, this, &ResizableStackedWidget::OnCurrentChanged);
}

ResizableStackedWidget::~ResizableStackedWidget() = default;

void ResizableStackedWidget::OnCurrentChanged(int index)
{
    const QPointer<QWidget> page = widget(index);
    if (!page)
        return;
    page->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    page->setMinimumSize(0, 0);
    page->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    page->adjustSize();
    // The page heard of its new size, and what it made of that may be another page, or its own end.
    if (!page || page != currentWidget())
        return;
    page->setFixedSize(page->size());
    // New limits replace the old ones at once, without a size in between that could be seen.
    setFixedSize(page->size());
}
