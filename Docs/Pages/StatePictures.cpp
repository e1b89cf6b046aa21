#include "StatePictures.h"

#include <Catalogue/Catalogue.h>
#include <Gallery/Inspector/ForcedStates.h>
#include <UI/Kit/ZSliderButton.h>
#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QToolButton>

namespace Zelkor::Documents {

namespace {

constexpr int MARGIN = 12;
constexpr int SETTLE_MS = 20;
constexpr int LIVE_MS = 400; ///< for the first frames of a stream, and for animations

void Wait(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    do
        QApplication::processEvents(QEventLoop::AllEvents, milliseconds);
    while (timer.elapsed() < milliseconds);
}

// Opens the pop-up of a widget. Returns false if it has none.
bool Open(QWidget* widget)
{
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        combo->showPopup();
    } else if (auto* panelButton = qobject_cast<Vx::UI::ButtonWithPopUpContainer*>(widget)) {
        panelButton->click();
    } else if (auto* tool = qobject_cast<QToolButton*>(widget); tool && tool->menu()) {
        tool->menu()->popup(tool->mapToGlobal(QPoint(0, tool->height())));
    } else if (auto* level = qobject_cast<ZSliderButton*>(widget)) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
        QApplication::sendEvent(level, &press);
    } else {
        return false;
    }
    return true;
}

QVector<QWidget*> OpenWindows(const QWidget* backdrop)
{
    QVector<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window != backdrop && window->isVisible() && window->windowType() != Qt::ToolTip)
            windows.append(window);
    }
    return windows;
}

// Returns a picture of a window with the pop-ups above it.
QImage Grab(QWidget* backdrop)
{
    QRect area = backdrop->geometry();
    const auto popUps = OpenWindows(backdrop);
    for (const QWidget* popUp : popUps)
        area |= popUp->geometry().adjusted(-MARGIN, -MARGIN, MARGIN, MARGIN);
    QImage image(area.size(), QImage::Format_RGB32);
    image.fill(backdrop->grab().toImage().pixelColor(0, 0));
    QPainter painter(&image);
    painter.drawPixmap(backdrop->pos() - area.topLeft(), backdrop->grab());
    for (QWidget* popUp : popUps)
        painter.drawPixmap(popUp->pos() - area.topLeft(), popUp->grab());
    return image;
}

} // namespace

QImage TakePicture(const Catalogue::Entry& entry, const Catalogue::State& state, Interaction interaction)
{
    QWidget backdrop;
    // Keeps the focus off the widget.
    backdrop.setFocusPolicy(Qt::StrongFocus);
    backdrop.setFocus();
    QWidget* widget = CreateInState(entry, state, &backdrop);
    widget->adjustSize();
    widget->move(MARGIN, MARGIN);
    // In the middle of the screen, for pop-ups in all directions.
    backdrop.setGeometry(QRect(QPoint(200, 300), widget->size() + QSize(2 * MARGIN, 2 * MARGIN)));
    backdrop.show();
    const bool isSlow = entry.className == "WebCameraPreviewStream" || interaction == Interaction::OPEN;
    Gallery::ForcedStates states(widget);
    if (interaction == Interaction::OPEN) {
        if (!Open(widget))
            return QImage();
    } else if (interaction != Interaction::NONE) {
        const auto forced = interaction == Interaction::HOVER     ? Gallery::ForcedStates::HOVER
                            : interaction == Interaction::PRESSED ? Gallery::ForcedStates::PRESSED
                                                                  : Gallery::ForcedStates::FOCUS;
        if (!states.IsApplicable(forced))
            return QImage();
        states.Force(forced, true);
    }
    Wait(isSlow ? LIVE_MS : SETTLE_MS);
    const QImage picture = Grab(&backdrop);
    for (QWidget* window : OpenWindows(&backdrop))
        window->hide();
    return picture;
}

QImage JoinPictures(const QVector<QImage>& pictures)
{
    QSize size(0, 0);
    for (const QImage& picture : pictures) {
        if (picture.isNull())
            return QImage();
        size = QSize(size.width() + picture.width(), qMax(size.height(), picture.height()));
    }
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    int x = 0;
    for (const QImage& picture : pictures) {
        painter.fillRect(x, 0, picture.width(), size.height(), picture.pixelColor(0, 0));
        painter.drawImage(x, 0, picture);
        x += picture.width();
    }
    return image;
}

} // namespace Zelkor::Documents
