#include "FittingScrollArea.h"

namespace Zelkor::Recorder {

FittingScrollArea::FittingScrollArea(QWidget* content, QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    content->setAutoFillBackground(false);
}

QSize FittingScrollArea::sizeHint() const
{
    return widget()->sizeHint();
}

} // namespace Zelkor::Recorder
