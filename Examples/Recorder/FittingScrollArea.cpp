#include "Scrolled.h"

#include <QScreen>
#include <QStyle>

namespace Zelkor::Gallery {

Scrolled::Scrolled(QWidget* content, QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    content->setAutoFillBackground(false);
}

QSize Scrolled::sizeHint() const
{
    return widget()->sizeHint();
}

void FitScreen(QWidget* window)
{
    // The real frame comes with the window, and too late.
    const bool isFramed = !window->windowFlags().testFlag(Qt::FramelessWindowHint);
    const int title = isFramed ? window->style()->pixelMetric(QStyle::PM_TitleBarHeight) : 0;
    const QSize room = window->screen()->availableSize() - QSize(0, title);
    window->resize(window->size().boundedTo(room));
}

} // namespace Zelkor::Gallery
