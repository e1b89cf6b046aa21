#include <UI/Kit/ZSlider.h>

#include <UI/Common/ClampToWidgetSize.h>
#include <UI/Kit/Internal/SliderTrack.h>
#include <UI/Kit/ZSliderThumb.h>

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace {

const QString DEFAULT_NAME = QStringLiteral("default");

// What the slider would draw itself is there, and transparent.
const QString TRANSPARENT_SHEET =
    QStringLiteral(" ZSlider                      { background:rgba(0,0,0,0); border:none;                    } "
                   " ZSlider::handle              { background:rgba(0,0,0,0); border:none;        image:none; } "
                   " ZSlider::groove              { background:rgba(0,0,0,0); border:none; border-image:none; } "
                   " ZSlider::add-page            { background:rgba(0,0,0,0); border:none; border-image:none; } "
                   " ZSlider::sub-page            { background:rgba(0,0,0,0); border:none; border-image:none; } "
                   " ZSlider::add-page:horizontal { background:rgba(0,0,0,0); border:none; border-image:none; } "
                   " ZSlider::sub-page:horizontal { background:rgba(0,0,0,0); border:none; border-image:none; } "
                   " ZSlider::add-page:vertical   { background:rgba(0,0,0,0); border:none; border-image:none; } "
                   " ZSlider::sub-page:vertical   { background:rgba(0,0,0,0); border:none; border-image:none; } ");

QList<ZSliderThumb*> ByValue(const QMap<QString, ZSliderThumb*>& thumbs)
{
    QList<ZSliderThumb*> sorted = thumbs.values();
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const ZSliderThumb* a, const ZSliderThumb* b) { return a->value() < b->value(); });
    return sorted;
}

// The key that leads the other way.
int Opposite(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return Qt::Key_Down;
    case Qt::Key_Down:
        return Qt::Key_Up;
    case Qt::Key_PageUp:
        return Qt::Key_PageDown;
    case Qt::Key_PageDown:
        return Qt::Key_PageUp;
    default:
        return key;
    }
}

} // namespace

ZSlider::ZSlider(QWidget* parent) : QSlider(Qt::Vertical, parent), groove(*this)
{
    // Thumbs do not go over to the other side, and neither shall keys and pages.
    setLayoutDirection(Qt::LeftToRight);
    setStyleSheet(TRANSPARENT_SHEET);
    addThumb(DEFAULT_NAME);
    // A key does not take the value to where the default thumb cannot follow.
    connect(this, &QAbstractSlider::actionTriggered, this, [this] {
        if (valueThumb)
            setSliderPosition(valueThumb->bounded(sliderPosition()));
    });
}

ZSlider::~ZSlider()
{
    // A thumb that goes tells its slider, which must still be whole then, but has nothing to say any more.
    const QSignalBlocker silence(this);
    while (!thumbs.isEmpty())
        delete thumbs.first();
    qDeleteAll(findChildren<ZSliderThumb*>(QString(), Qt::FindDirectChildrenOnly));
}

ZSliderThumb* ZSlider::addThumb(const QString& name)
{
    removeThumb(name);
    auto* thumb = new ZSliderThumb(this);
    thumb->key = name;
    thumb->setFocusPolicy(Qt::ClickFocus);
    // Behind any other thumb: behind the slider itself, Qt searches all children.
    setTabOrder(thumbs.isEmpty() ? static_cast<QWidget*>(this) : thumbs.last(), thumb);
    thumb->setName(name);
    thumb->setStyleTag(name);
    thumbs.insert(name, thumb);
    connect(thumb, &ZSliderThumb::toggled, this, &ZSlider::thumbToggled);
    connect(thumb, &ZSliderThumb::dragStarted, this, [this] { setSliderDown(true); });
    connect(thumb, &ZSliderThumb::dragFinished, this, [this] { setSliderDown(false); });
    if (name == DEFAULT_NAME) {
        valueThumb = thumb;
        thumb->setValue(value());
        connect(thumb, &ZSliderThumb::valueChanged, this, &ZSlider::defaultSliderValueChanged);
        connect(this, &QAbstractSlider::valueChanged, this, &ZSlider::defaultSliderSetValue, Qt::UniqueConnection);
    }
    thumb->place();
    setZOrder(*thumb, thumb->zOrder());
    if (isVisible())
        thumb->show();
    updateGeometry();
    return thumb;
}

void ZSlider::removeThumb(const QString& name)
{
    delete thumb(name);
}

// A thumb is about to go, whoever deletes it.
void ZSlider::forget(ZSliderThumb* thumb)
{
    const bool isDragged = thumb->dragging || (draggingFromGroove && grooveThumb() == thumb);
    if (thumbs.value(thumb->key) == thumb) {
        thumbs.remove(thumb->key);
        stacking.remove({thumb->currentZOrder, thumb->key});
    }
    if (valueThumb == thumb)
        valueThumb = nullptr;
    if (selected == thumb)
        selected = valueThumb;
    updateGeometry();
    if (!isDragged)
        return;
    draggingFromGroove = false;
    setSliderDown(false);
}

void ZSlider::setSelectedThumb(ZSliderThumb* thumb)
{
    if (!thumb && selected)
        selected->check(false);
    else if (thumb && thumb->slider == this)
        thumb->check(true);
}

void ZSlider::setGrooveOffset(int pixels)
{
    groove.setOffset(pixels);
    layOut();
    restack();
    update();
}

void ZSlider::setStyle(SliderGroove::Part part, const QString& style)
{
    groove.setStyle(part, style);
    update();
}

void ZSlider::setSegments(const QVector<Segment>& segments)
{
    stretches = segments;
    update();
}

void ZSlider::addSegment(int from, int to, bool isSelected)
{
    stretches.append({from, to, isSelected});
    update();
}

void ZSlider::clearSegments()
{
    setSegments({});
}

ZSlider::SliderTrack ZSlider::track() const
{
    return {orientation() == Qt::Horizontal ? width() : height(), groove.offset(), minimum(), maximum()};
}

int ZSlider::valueAt(const QPoint& point) const
{
    return track().valueAt(orientation() == Qt::Horizontal ? point.x() : point.y());
}

int ZSlider::snapped(const ZSliderThumb& thumb, int value) const
{
    if (!snapping || !valueThumb || &thumb == valueThumb)
        return value;
    const qint64 distance = qAbs(qint64(valueThumb->value()) - value);
    return distance < qint64(maximum()) * snapThousandths / 1000 ? valueThumb->value() : value;
}

bool ZSlider::hasOtherThumbAt(const QPoint& point, const ZSliderThumb& thumb) const
{
    return std::any_of(thumbs.begin(), thumbs.end(), [&](const ZSliderThumb* other) {
        return other != &thumb && other->isVisible() && other->geometry().contains(point);
    });
}

QSize ZSlider::withThumbs(const QSize& size) const
{
    QSize whole = size;
    for (ZSliderThumb* thumb : thumbs) {
        thumb->ensurePolished();
        const bool isHorizontal = orientation() == Qt::Horizontal;
        const int thickness = Zelkor::Vx::UI::Common::ClampToWidgetSize(thumb->parentMargin()) +
                              (isHorizontal ? thumb->height() : thumb->width());
        whole = whole.expandedTo(isHorizontal ? QSize(0, thickness) : QSize(thickness, 0));
    }
    return whole;
}

QSize ZSlider::sizeHint() const
{
    return withThumbs(QSlider::sizeHint());
}

QSize ZSlider::minimumSizeHint() const
{
    return withThumbs(QSlider::minimumSizeHint());
}

void ZSlider::layOut()
{
    for (ZSliderThumb* thumb : qAsConst(thumbs)) {
        const QSignalBlocker silence(thumb);
        thumb->setValue(thumb->value());
    }
}

void ZSlider::setZOrder(ZSliderThumb& thumb, int order)
{
    const int before = std::exchange(thumb.currentZOrder, order);
    if (thumbs.value(thumb.key) != &thumb)
        return;
    stacking.remove({before, thumb.key});
    const auto above = stacking.upperBound({order, thumb.key});
    if (above == stacking.end())
        thumb.raise();
    else
        thumb.stackUnder(*above);
    stacking.insert({order, thumb.key}, &thumb);
}

void ZSlider::restack()
{
    for (ZSliderThumb* thumb : qAsConst(stacking))
        thumb->raise();
}

void ZSlider::defaultSliderSetValue(int value)
{
    synchronise(Follower::THUMB, value);
}

void ZSlider::defaultSliderValueChanged(int value)
{
    synchronise(Follower::SLIDER, value);
}

// Slider and default thumb follow each other without end, so the one that follows is not followed. Whoever moves one of
// them while it is told that the other moved is heard afterwards.
void ZSlider::synchronise(Follower follower, int value)
{
    if (!valueThumb)
        return;
    if (synchronising) {
        pending = valueThumb->value() == valueThumb->bounded(this->value()) ? Follower::NONE : follower;
        return;
    }
    const QPointer<ZSlider> self(this);
    synchronising = true;
    while (valueThumb && follower != Follower::NONE) {
        pending = Follower::NONE;
        if (follower == Follower::THUMB)
            valueThumb->setValue(value);
        else
            QAbstractSlider::setValue(value);
        if (!self)
            return;
        follower = pending;
        value = follower == Follower::THUMB || !valueThumb ? this->value() : valueThumb->value();
    }
    synchronising = false;
}

void ZSlider::thumbToggled(bool flag)
{
    auto* thumb = qobject_cast<ZSliderThumb*>(sender());
    update(); // the mark of the focus goes to another thumb
    if (!flag) {
        // Another thumb may be selected already, which is why this one no longer is.
        if (selected == thumb)
            selected = valueThumb;
        return;
    }
    selected = thumb;
    QVector<QPointer<ZSliderThumb>> others;
    for (ZSliderThumb* other : qAsConst(thumbs))
        others.append(other);
    const QPointer<ZSlider> self(this);
    for (const QPointer<ZSliderThumb>& other : qAsConst(others)) {
        if (self && other && other != selected)
            other->check(false);
    }
}

// The thumb that a press on the groove moves.
ZSliderThumb* ZSlider::grooveThumb() const
{
    if (selected && selected->movesOnGrooveClick())
        return selected;
    return valueThumb && valueThumb->movesOnGrooveClick() ? valueThumb : nullptr;
}

void ZSlider::finishGrooveDrag()
{
    if (!draggingFromGroove)
        return;
    draggingFromGroove = false;
    setSliderDown(false);
}

void ZSlider::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    const QPointer<ZSlider> self(this);
    setSliderDown(true);
    if (!self)
        return;
    ZSliderThumb* thumb = grooveThumb();
    if (!thumb) {
        setSliderDown(false);
        return;
    }
    draggingFromGroove = true;
    thumb->setValue(valueAt(event->pos()));
}

void ZSlider::mouseMoveEvent(QMouseEvent* event)
{
    event->setAccepted(draggingFromGroove);
    ZSliderThumb* thumb = draggingFromGroove ? grooveThumb() : nullptr;
    if (thumb)
        thumb->setValue(valueAt(event->pos()));
}

void ZSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        finishGrooveDrag();
}

bool ZSlider::moveFocus(QKeyEvent& event, ZSliderThumb* from)
{
    const bool isBack = event.key() == Qt::Key_Left || event.key() == Qt::Key_Down;
    const bool isForth = event.key() == Qt::Key_Right || event.key() == Qt::Key_Up;
    if (!event.modifiers().testFlag(Qt::ControlModifier) || (!isBack && !isForth))
        return false;
    event.accept();
    QList<ZSliderThumb*> reachable = ByValue(thumbs);
    reachable.erase(
        std::remove_if(reachable.begin(), reachable.end(),
                       [](const ZSliderThumb* thumb) { return !thumb->isVisible() || !thumb->isEnabled(); }),
        reachable.end());
    const int next = reachable.indexOf(from) + (isForth ? 1 : -1);
    if (next >= 0 && next < reachable.size())
        reachable[next]->setFocus(Qt::TabFocusReason);
    return true;
}

// For Qt the values of an upright slider grow upwards.
void ZSlider::pressValueKey(QKeyEvent& event)
{
    const int key = orientation() == Qt::Vertical ? Opposite(event.key()) : event.key();
    QKeyEvent asQtHasIt(event.type(), key, event.modifiers());
    QAbstractSlider::keyPressEvent(&asQtHasIt);
    event.setAccepted(asQtHasIt.isAccepted());
}

void ZSlider::keyPressEvent(QKeyEvent* event)
{
    if (moveFocus(*event, keyThumb()))
        return;
    if (!selected) {
        pressValueKey(*event);
        return;
    }
    // Its release would come to the slider as well, and leave the thumb down.
    if (event->key() != Qt::Key_Space && event->key() != Qt::Key_Select)
        selected->keyPressEvent(event);
    else if (!event->isAutoRepeat())
        selected->click();
}

void ZSlider::wheelEvent(QWheelEvent* event)
{
    if (selected)
        selected->wheelEvent(event);
    else
        event->ignore();
}

void ZSlider::resizeEvent(QResizeEvent* event)
{
    QSlider::resizeEvent(event);
    layOut();
}

void ZSlider::hideEvent(QHideEvent* event)
{
    QSlider::hideEvent(event);
    finishGrooveDrag();
}

void ZSlider::changeEvent(QEvent* event)
{
    QSlider::changeEvent(event);
    switch (event->type()) {
    case QEvent::EnabledChange:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
    case QEvent::FontChange:
        groove.invalidate();
        update();
        break;
    default:
        break;
    }
    if (!isEnabled())
        finishGrooveDrag();
}

void ZSlider::sliderChange(SliderChange change)
{
    // Most grooves look the same at every value; then only the thumb is painted, which moves.
    if (change != SliderValueChange || groove.followsValue())
        QSlider::sliderChange(change);
    if (change == SliderRangeChange || change == SliderOrientationChange)
        layOut();
}

void ZSlider::paintSegments(QPainter& painter)
{
    const SliderTrack line = track();
    const bool isHorizontal = orientation() == Qt::Horizontal;
    // The clip cuts at whole pixels of the screen, so that parts of one picture meet without a seam.
    const auto drawPart = [&](SliderGroove::Part look, int from, int to) {
        painter.setClipRect(isHorizontal ? QRect(from, 0, to - from, height()) : QRect(0, from, width(), to - from));
        painter.drawPixmap(0, 0, groove.pixmap(look));
    };
    const auto pixelOf = [&](int value) { return line.pixelOfSegment(qBound(minimum(), value, maximum())); };
    for (const Segment& segment : qAsConst(stretches)) {
        const auto [from, to] = std::minmax({pixelOf(segment.from), pixelOf(segment.to)});
        drawPart(segment.selected ? SliderGroove::SELECTED : SliderGroove::NORMAL, from, to + 1);
    }
    for (const Segment& segment : qAsConst(stretches)) {
        for (const int pixel : {pixelOf(segment.from), pixelOf(segment.to)})
            drawPart(SliderGroove::BORDER, pixel, pixel + 1);
    }
}

void ZSlider::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        painter.drawPixmap(0, 0, groove.pixmap(SliderGroove::EMPTY));
        paintSegments(painter);
    }
    QSlider::paintEvent(event);
}
