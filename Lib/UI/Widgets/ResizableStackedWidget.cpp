#include <UI/Widgets/ResizableStackedWidget.h>

#include <QEvent>
#include <QPointer>

namespace {

// Fixes the stack around its page. New limits replace the old ones at once, without a size in between that could be
// seen.
void FitAround(QStackedWidget* stack, const QWidget& page)
{
    const QMargins border = stack->contentsMargins();
    stack->setFixedSize(page.size() + QSize(border.left() + border.right(), border.top() + border.bottom()));
}

} // namespace

ResizableStackedWidget::ResizableStackedWidget(QWidget* parent) : QStackedWidget(parent)
{
    connect(this, &QStackedWidget::currentChanged, this, &ResizableStackedWidget::OnCurrentChanged);
}

ResizableStackedWidget::~ResizableStackedWidget() = default;

bool ResizableStackedWidget::event(QEvent* event)
{
    const bool handled = QStackedWidget::event(event);
    switch (event->type()) {
    case QEvent::Polish:
    case QEvent::Show:
        // A form adds its pages before it sets their texts.
        if (!wasShown)
            OnCurrentChanged(currentIndex());
        wasShown |= event->type() == QEvent::Show;
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LanguageChange:
        // The page gets its own event before or after this one, and changes its texts in it.
        QMetaObject::invokeMethod(
            this, [this] { OnCurrentChanged(currentIndex()); }, Qt::QueuedConnection);
        break;
    case QEvent::ContentsRectChange:
        if (const QWidget* page = currentWidget())
            FitAround(this, *page);
        break;
    default:
        break;
    }
    return handled;
}

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
    FitAround(this, *page);
}
