#include "ScreenFit.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace Zelkor::Examples {

void FitToScreen(QWidget* window)
{
    // The real frame is unknown until the window is shown.
    const bool isFramed = !window->windowFlags().testFlag(Qt::FramelessWindowHint);
    const int title = isFramed ? window->style()->pixelMetric(QStyle::PM_TitleBarHeight) : 0;
    const QSize room = window->screen()->availableSize() - QSize(0, title);
    window->resize(window->size().boundedTo(room));
}

} // namespace Zelkor::Examples
