#include <UI/Widgets/ResizableStackedWidget.h>

#include <QEvent>
#include <QPointer>

namespace {

// Fixes the size of the stack around its page, in one step without a visible intermediate size.
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
        // Code that uic generates adds pages before it sets their texts.
        if (!wasShown)
            OnCurrentChanged(currentIndex());
        wasShown |= event->type() == QEvent::Show;
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LanguageChange:
        // The page may receive its own event later, and change its texts then.
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
    // A resize handler of the page may have deleted it or made another page current.
    if (!page || page != currentWidget())
        return;
    page->setFixedSize(page->size());
    FitAround(this, *page);
}
