#include "FirstHint.h"

#include <Examples/Support/Artwork.h>
#include <UI/Widgets/MaskedToolTip.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QVariant>

using Zelkor::Vx::UI::MaskedToolTip;

namespace Zelkor::Recorder {

using namespace Examples;

namespace {

constexpr QSize BUBBLE_SIZE(280, 96);
constexpr int DISTANCE = 4;
constexpr int DISPLAY_TIME_MS = 8000;

class FirstHint
{
    Q_DECLARE_TR_FUNCTIONS(FirstHint)
};

} // namespace

void ShowSourceHint(QAbstractButton* button)
{
    auto* hint = new MaskedToolTip(button->window());
    hint->setAttribute(Qt::WA_DeleteOnClose);
    hint->setProperty("role", QStringLiteral("bubble"));
    hint->setFixedSize(BUBBLE_SIZE);
    hint->SetMask(SpeechBubbleImage(BUBBLE_SIZE, button->layoutDirection()));
    hint->SetTitle(FirstHint::tr("Start here"));
    hint->SetText(FirstHint::tr("Choose what is shown: a camera, the screen or the test picture."));
    hint->SetDisplayTime(DISPLAY_TIME_MS);
    QObject::connect(button, &QAbstractButton::pressed, hint, &QWidget::close);
    const int x = button->layoutDirection() == Qt::RightToLeft ? button->width() - BUBBLE_SIZE.width() : 0;
    hint->Show(button->mapToGlobal(QPoint(x, -BUBBLE_SIZE.height() - DISTANCE)));
}

} // namespace Zelkor::Recorder
