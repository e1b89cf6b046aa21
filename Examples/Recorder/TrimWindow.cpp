#include "TrimWindow.h"
#include "FittingScrollArea.h"
#include "TrimPage.h"

#include <Examples/Support/FramelessWindow.h>

#include <QVBoxLayout>

namespace Zelkor::Recorder {

TrimWindow::TrimWindow()
{
    auto* page = new TrimPage;
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new FittingScrollArea(page));
    setWindowTitle(page->windowTitle());
    connect(page, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
    Examples::ReplaceFrame(this);
}

} // namespace Zelkor::Recorder
