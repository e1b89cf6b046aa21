#include "Snapshot.h"

#include <UI/Widgets/PixmapWidget.h>

#include <QEvent>

using Zelkor::Vx::PixmapWidget;

namespace Zelkor::Recorder {

namespace {

constexpr int SIDE = 72;
constexpr int RING = 2; ///< drawn by the style sheet, whose radius depends on the size
constexpr int DISTANCE = 8;
constexpr int INTERVAL_MS = 400;

} // namespace

Snapshot::Snapshot(QWidget* source)
    : QFrame(source->parentWidget()), source(source), thumbnail(new PixmapWidget(this, Qt::WindowFlags()))
{
    setObjectName("snapshot");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    thumbnail->SetMaskMode(PixmapWidget::MASK_ELLIPSE);
    thumbnail->SetMaskAnchor(PixmapWidget::ANCHOR_CENTER);
    connect(&timer, &QTimer::timeout, this, &Snapshot::Take);
    resize(SIDE + 2 * RING, SIDE + 2 * RING);
    thumbnail->setGeometry(RING, RING, SIDE, SIDE);
    source->installEventFilter(this);
    Place();
}

void Snapshot::Place()
{
    QRect place(QPoint(), size());
    const QRect area = source->geometry().adjusted(DISTANCE, DISTANCE, -DISTANCE, -DISTANCE);
    if (layoutDirection() == Qt::RightToLeft)
        place.moveTopLeft(area.topLeft());
    else
        place.moveTopRight(area.topRight());
    move(place.topLeft());
}

bool Snapshot::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        Place();
    return QFrame::eventFilter(watched, event);
}

void Snapshot::Take()
{
    thumbnail->SetPixmap(source->grab());
}

void Snapshot::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    timer.start(INTERVAL_MS);
}

void Snapshot::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    timer.stop();
    // Schedules the next picture.
    thumbnail->SetPixmap(QPixmap());
}

} // namespace Zelkor::Recorder
