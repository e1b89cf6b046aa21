#include <UI/Kit/ZSlider.h>

#include <UI/Common/ClampToWidgetSize.h>
#include <UI/Kit/Internal/SliderGroove.h>
#include <UI/Kit/Internal/SliderThumbController.h>
#include <UI/Kit/ZSliderThumb.h>

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

using namespace Zelkor::Vx::UI;
using Kit::SliderGroove;
using Kit::SliderTrack;

namespace {

const QString DEFAULT_NAME = QStringLiteral("default");

// Keeps the geometry of QSlider and makes everything that it draws transparent.
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

// Returns the key for the opposite direction.
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

struct ZSlider::Impl : Kit::SliderThumbController
{
    explicit Impl(ZSlider* owner) : SliderThumbController(*owner), owner(owner), groove(*owner) {}

    SliderTrack track() const override;
    void pointerMoved(const QPoint& point) override { owner->pointerMoved(point); }
    void stepSlider(QKeyEvent& event) override;

    void setStyle(SliderGroove::Part part, const QString& style);
    void paintSegments(QPainter& painter);

    ZSlider* const owner;
    SliderGroove groove;
    QVector<Segment> segments;
};

SliderTrack ZSlider::Impl::track() const
{
    const int extent = owner->orientation() == Qt::Horizontal ? owner->width() : owner->height();
    return {extent, groove.offset(), owner->minimum(), owner->maximum()};
}

// In Qt the values of a vertical slider grow upwards.
void ZSlider::Impl::stepSlider(QKeyEvent& event)
{
    const int key = owner->orientation() == Qt::Vertical ? Opposite(event.key()) : event.key();
    QKeyEvent translated(event.type(), key, event.modifiers());
    owner->QAbstractSlider::keyPressEvent(&translated);
    event.setAccepted(translated.isAccepted());
}

void ZSlider::Impl::setStyle(SliderGroove::Part part, const QString& style)
{
    groove.setStyle(part, style);
    owner->update();
}

void ZSlider::Impl::paintSegments(QPainter& painter)
{
    const SliderTrack line = track();
    const bool isHorizontal = owner->orientation() == Qt::Horizontal;
    // Clipping is aligned to device pixels, so that adjacent parts of a pixmap have no seam.
    const auto drawPart = [&](SliderGroove::Part look, int from, int to) {
        painter.setClipRect(isHorizontal ? QRect(from, 0, to - from, owner->height())
                                         : QRect(0, from, owner->width(), to - from));
        painter.drawPixmap(0, 0, groove.pixmap(look));
    };
    const auto pixelOf = [&](int value) {
        return line.pixelOfSegment(qBound(owner->minimum(), value, owner->maximum()));
    };
    for (const Segment& segment : std::as_const(segments)) {
        const auto [from, to] = std::minmax({pixelOf(segment.from), pixelOf(segment.to)});
        drawPart(segment.selected ? SliderGroove::SELECTED : SliderGroove::NORMAL, from, to + 1);
    }
    for (const Segment& segment : std::as_const(segments)) {
        for (const int pixel : {pixelOf(segment.from), pixelOf(segment.to)})
            drawPart(SliderGroove::BORDER, pixel, pixel + 1);
    }
}

// Defined here because it needs ZSlider complete. The rest of ZSliderThumb uses SliderThumbHost.
ZSliderThumb::ZSliderThumb(ZSlider* slider) : ZSliderThumb(slider, slider ? slider->impl.get() : nullptr) {}

ZSlider::ZSlider(QWidget* parent) : QSlider(Qt::Vertical, parent), impl(std::make_unique<Impl>(this))
{
    // Thumbs are not mirrored, so keys and pages must not be either.
    setLayoutDirection(Qt::LeftToRight);
    setStyleSheet(TRANSPARENT_SHEET);
    addThumb(DEFAULT_NAME);
    // Keys do not move the value to where the default thumb cannot follow.
    connect(this, &QAbstractSlider::actionTriggered, this, [this] {
        if (defaultThumb())
            setSliderPosition(impl->boundedByDefaultThumb(sliderPosition()));
    });
}

ZSlider::~ZSlider()
{
    // The destructor of a thumb calls its slider, which must still be complete but must not emit any more.
    const QSignalBlocker blocker(this);
    while (!impl->thumbs().isEmpty())
        delete impl->thumbs().first();
    qDeleteAll(findChildren<ZSliderThumb*>(QString(), Qt::FindDirectChildrenOnly));
}

int ZSlider::grooveOffset() const
{
    return impl->groove.offset();
}

void ZSlider::setGrooveOffset(int pixels)
{
    impl->groove.setOffset(pixels);
    impl->updateThumbs();
    impl->restack();
    update();
}

QString ZSlider::grooveEmptyStyle() const
{
    return impl->groove.style(SliderGroove::EMPTY);
}

void ZSlider::setGrooveEmptyStyle(const QString& style)
{
    impl->setStyle(SliderGroove::EMPTY, style);
}

QString ZSlider::grooveNormalStyle() const
{
    return impl->groove.style(SliderGroove::NORMAL);
}

void ZSlider::setGrooveNormalStyle(const QString& style)
{
    impl->setStyle(SliderGroove::NORMAL, style);
}

QString ZSlider::grooveSelectedStyle() const
{
    return impl->groove.style(SliderGroove::SELECTED);
}

void ZSlider::setGrooveSelectedStyle(const QString& style)
{
    impl->setStyle(SliderGroove::SELECTED, style);
}

QString ZSlider::grooveBorderStyle() const
{
    return impl->groove.style(SliderGroove::BORDER);
}

void ZSlider::setGrooveBorderStyle(const QString& style)
{
    impl->setStyle(SliderGroove::BORDER, style);
}

QString ZSlider::addPageStyle() const
{
    return impl->groove.style(SliderGroove::ADD_PAGE);
}

void ZSlider::setAddPageStyle(const QString& style)
{
    impl->setStyle(SliderGroove::ADD_PAGE, style);
}

QString ZSlider::subPageStyle() const
{
    return impl->groove.style(SliderGroove::SUB_PAGE);
}

void ZSlider::setSubPageStyle(const QString& style)
{
    impl->setStyle(SliderGroove::SUB_PAGE, style);
}

ZSliderThumb* ZSlider::addThumb(const QString& name)
{
    removeThumb(name);
    auto* thumb = new ZSliderThumb(this);
    thumb->setFocusPolicy(Qt::ClickFocus);
    thumb->setName(name);
    thumb->setStyleTag(name);
    impl->insert(name, thumb);
    connect(thumb, &ZSliderThumb::toggled, this, &ZSlider::thumbToggled);
    connect(thumb, &ZSliderThumb::dragStarted, this, [this] { setSliderDown(true); });
    connect(thumb, &ZSliderThumb::dragFinished, this, [this] { setSliderDown(false); });
    if (name == DEFAULT_NAME) {
        impl->setDefaultThumb(thumb);
        connect(thumb, &ZSliderThumb::valueChanged, this, &ZSlider::defaultSliderValueChanged);
        connect(this, &QAbstractSlider::valueChanged, this, &ZSlider::defaultSliderSetValue, Qt::UniqueConnection);
    }
    thumb->setValue(thumb->value()); // moves it there
    if (isVisible())
        thumb->show();
    updateGeometry();
    return thumb;
}

void ZSlider::removeThumb(const QString& name)
{
    delete thumb(name);
}

ZSliderThumb* ZSlider::thumb(const QString& name) const
{
    return impl->thumbs().value(name);
}

QStringList ZSlider::thumbNames() const
{
    return impl->thumbs().keys();
}

ZSliderThumb* ZSlider::defaultThumb() const
{
    return impl->defaultThumb();
}

ZSliderThumb* ZSlider::selectedThumb() const
{
    return impl->selectedThumb();
}

void ZSlider::setSelectedThumb(ZSliderThumb* thumb)
{
    impl->select(thumb);
}

QVector<ZSlider::Segment> ZSlider::segments() const
{
    return impl->segments;
}

void ZSlider::setSegments(const QVector<Segment>& segments)
{
    impl->segments = segments;
    update();
}

void ZSlider::addSegment(int from, int to, bool isSelected)
{
    impl->segments.append({from, to, isSelected});
    update();
}

void ZSlider::clearSegments()
{
    setSegments({});
}

bool ZSlider::isSnapping() const
{
    return impl->isSnapping();
}

void ZSlider::setSnapping(bool on)
{
    impl->setSnapping(on);
}

int ZSlider::snapDistance() const
{
    return impl->snapDistance();
}

void ZSlider::setSnapDistance(int thousandths)
{
    impl->setSnapDistance(thousandths);
}

QSize ZSlider::withThumbs(const QSize& size) const
{
    const bool isHorizontal = orientation() == Qt::Horizontal;
    int thickness = 0;
    for (ZSliderThumb* thumb : impl->thumbs()) {
        thumb->ensurePolished();
        const int margin = Common::ClampToWidgetSize(thumb->parentMargin());
        thickness = qMax(thickness, margin + (isHorizontal ? thumb->height() : thumb->width()));
    }
    return size.expandedTo(isHorizontal ? QSize(0, thickness) : QSize(thickness, 0));
}

QSize ZSlider::sizeHint() const
{
    return withThumbs(QSlider::sizeHint());
}

QSize ZSlider::minimumSizeHint() const
{
    return withThumbs(QSlider::minimumSizeHint());
}

void ZSlider::defaultSliderSetValue(int value)
{
    impl->handleSliderValue(value);
}

void ZSlider::defaultSliderValueChanged(int value)
{
    impl->handleThumbValue(value);
}

void ZSlider::thumbToggled(bool flag)
{
    impl->handleToggled(qobject_cast<ZSliderThumb*>(sender()), flag);
}

void ZSlider::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() == Qt::LeftButton)
        impl->startGrooveDrag(event->pos());
}

void ZSlider::mouseMoveEvent(QMouseEvent* event)
{
    event->setAccepted(impl->isGrooveDragged());
    impl->continueGrooveDrag(event->pos());
}

void ZSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        impl->finishGrooveDrag();
}

void ZSlider::keyPressEvent(QKeyEvent* event)
{
    impl->pressKey(*event);
}

void ZSlider::wheelEvent(QWheelEvent* event)
{
    impl->turnWheel(*event);
}

void ZSlider::resizeEvent(QResizeEvent* event)
{
    QSlider::resizeEvent(event);
    impl->updateThumbs();
}

void ZSlider::hideEvent(QHideEvent* event)
{
    QSlider::hideEvent(event);
    impl->finishGrooveDrag();
}

void ZSlider::changeEvent(QEvent* event)
{
    QSlider::changeEvent(event);
    switch (event->type()) {
    case QEvent::EnabledChange:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
    case QEvent::FontChange:
        impl->groove.invalidate();
        update();
        break;
    default:
        break;
    }
    if (!isEnabled())
        impl->finishGrooveDrag();
}

void ZSlider::sliderChange(SliderChange change)
{
    // If the groove does not depend on the value, moving the thumb is enough.
    if (change != SliderValueChange || impl->groove.followsValue())
        QSlider::sliderChange(change);
    if (change == SliderRangeChange || change == SliderOrientationChange)
        impl->updateThumbs();
}

void ZSlider::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        painter.drawPixmap(0, 0, impl->groove.pixmap(SliderGroove::EMPTY));
        impl->paintSegments(painter);
    }
    QSlider::paintEvent(event);
}
