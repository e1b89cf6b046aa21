#include <UI/Kit/QLedMatrix.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Kit/Internal/LedPixmapCache.h>

#include <QAccessibleWidget>
#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <QVector>

#include <algorithm>
#include <cmath>

using namespace Zelkor::Vx::UI;
using Kit::LedPixmapCache;

namespace {

// In units of the grid. An LED is a circle, centred in its cell.
constexpr int CELL = 10;
constexpr double LED = LedPixmapCache::DIAMETER;
constexpr double BORDER = 1;

constexpr int MAXIMUM_COUNT = QWIDGETSIZE_MAX / CELL;
constexpr qint64 MAXIMUM_LEDS = 1 << 24;

// In pixels. The raster engine paints nothing beyond.
constexpr double LARGEST_LINE = 32767;

bool IsReasonable(qint64 rows, qint64 columns)
{
    return qMax(rows, columns) <= MAXIMUM_COUNT && rows * columns <= MAXIMUM_LEDS;
}

struct Range
{
    int first;
    int last; ///< less than `first` if the range is empty
};

// Returns the indexes of the cells between two coordinates, and one more at each end.
Range CellsBetween(double begin, double end, int count)
{
    const auto index = [=](double coordinate) {
        return int(qBound(-1.0, std::floor(coordinate / CELL), double(count)));
    };
    return {qMax(0, index(begin) - 1), qMin(count - 1, index(end) + 1)};
}

// Returns whether the painter paints square, unrotated pixels, unlike a printer or a rotated view.
bool CanUseCache(const QPainter& painter, const QRectF& exposed)
{
    const QTransform transform = painter.deviceTransform();
    const bool isUpright = transform.type() <= QTransform::TxScale && transform.m11() > 0 &&
                           qFuzzyCompare(transform.m11(), transform.m22());
    return painter.paintEngine()->type() == QPaintEngine::Raster && isUpright &&
           transform.m11() <= LedPixmapCache::LARGEST_SCALE && exposed.width() <= LARGEST_LINE;
}

class AccessibleMatrix : public QAccessibleWidget
{
public:
    explicit AccessibleMatrix(QWidget* matrix) : QAccessibleWidget(matrix, QAccessible::Graphic) {}

    QString text(QAccessible::Text kind) const override
    {
        const QString own = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && own.isEmpty() ? QLedMatrix::tr("LED matrix") : own;
    }
};

} // namespace

struct QLedMatrix::Impl
{
    explicit Impl(QLedMatrix* owner) : owner(owner) {}

    bool Has(int row, int column) const { return row >= 0 && row < rows && column >= 0 && column < columns; }
    void Resize(int newRows, int newColumns);
    void UpdateAll();
    void UpdateStale();
    QTransform GridToWidget() const;
    void PaintCircles(QPainter& painter, Range rowRange, Range columnRange) const;
    void PaintCachedCircles(QPainter& painter, Range rowRange, Range columnRange);

    QLedMatrix* owner;
    QBrush background{Qt::black, Qt::SolidPattern};
    Qt::BGMode backgroundMode = Qt::OpaqueMode;
    QColor darkLedColor = QColor::fromRgba(NoColor);
    QVector<QVector<QRgb>> leds; ///< by column, then row
    int rows = 0;
    int columns = 0;
    double logicalHeight = 0;
    double logicalWidth = 0;
    double aspect = 0;

    QRect stale; ///< columns and rows of LEDs that changed without an update
    LedPixmapCache cache;
};

// New LEDs are off.
void QLedMatrix::Impl::Resize(int newRows, int newColumns)
{
    rows = newRows;
    columns = newColumns;
    logicalHeight = double(rows) * CELL;
    logicalWidth = double(columns) * CELL;
    if (logicalHeight > 0)
        aspect = logicalWidth / logicalHeight;
    leds.resize(columns);
    for (QVector<QRgb>& column : leds) {
        const int kept = qMin(column.size(), rows);
        column.resize(rows);
        std::fill(column.begin() + kept, column.end(), darkLedColor.rgba());
    }
    owner->updateGeometry();
    UpdateAll();
}

void QLedMatrix::Impl::UpdateAll()
{
    stale = QRect();
    owner->update();
}

// Includes one more pixel at each side, because device pixels may overlap two logical ones.
void QLedMatrix::Impl::UpdateStale()
{
    const QRectF cells(stale.x() * CELL, stale.y() * CELL, stale.width() * CELL, stale.height() * CELL);
    const QRectF circles = cells.adjusted(0, 0, LED - CELL, LED - CELL);
    owner->update(GridToWidget().mapRect(circles).toAlignedRect().adjusted(-1, -1, 1, 1));
    stale = QRect();
}

// Maps units of the grid, with the first LED at the origin, to the widget. Singular if the widget is empty.
QTransform QLedMatrix::Impl::GridToWidget() const
{
    const double factor = qMin(owner->width() / logicalWidth, owner->height() / logicalHeight);
    QTransform transform = QTransform::fromTranslate(owner->width() / 2.0, owner->height() / 2.0);
    transform.scale(factor, factor);
    return transform.translate(BORDER - logicalWidth / 2, BORDER - logicalHeight / 2);
}

void QLedMatrix::Impl::PaintCircles(QPainter& painter, Range rowRange, Range columnRange) const
{
    for (int row = rowRange.first; row <= rowRange.last; ++row) {
        for (int column = columnRange.first; column <= columnRange.last; ++column) {
            painter.setBrush(QColor::fromRgba(leds[column][row]));
            painter.drawEllipse(QRectF(column * CELL, row * CELL, LED, LED));
        }
    }
}

// Paints one image per row, in device pixels.
void QLedMatrix::Impl::PaintCachedCircles(QPainter& painter, Range rowRange, Range columnRange)
{
    const QTransform transform = painter.deviceTransform();
    painter.setWorldTransform(transform.inverted(), true);
    cache.setScale(transform.m11());
    QVector<LedPixmapCache::SubpixelPosition> places;
    for (int column = columnRange.first; column <= columnRange.last; ++column)
        places.append(LedPixmapCache::SubpixelPosition(transform.dx() + double(column) * CELL * transform.m11()));
    const int left = places.first().pixel;
    const bool areApart = cache.areApart(CELL * transform.m11());
    QImage pixels = cache.makeRow(left, places.last().pixel);
    for (int row = rowRange.first; row <= rowRange.last; ++row) {
        const LedPixmapCache::SubpixelPosition y(transform.dy() + double(row) * CELL * transform.m22());
        pixels.fill(Qt::transparent);
        for (int i = 0; i < places.size(); ++i) {
            const QRgb color = leds.at(columnRange.first + i).at(row);
            cache.draw(pixels, places[i].pixel - left, places[i].phase, y.phase, color, areApart);
        }
        painter.drawImage(left, y.pixel, pixels);
    }
}

QLedMatrix::QLedMatrix(QWidget* parent) : QWidget(parent), impl(std::make_unique<Impl>(this))
{
    Common::AccessibleFactory<QLedMatrix, AccessibleMatrix>::Install();
}

QLedMatrix::~QLedMatrix() = default;

QColor QLedMatrix::backgroundColor() const
{
    return impl->background.color();
}

void QLedMatrix::setBackgroundColor(const QColor& color)
{
    if (backgroundColor() == color)
        return;
    impl->background.setColor(color);
    update();
}

Qt::BGMode QLedMatrix::backgroundMode() const
{
    return impl->backgroundMode;
}

void QLedMatrix::setBackgroundMode(Qt::BGMode mode)
{
    if (impl->backgroundMode == mode)
        return;
    impl->backgroundMode = mode;
    update();
}

QColor QLedMatrix::darkLedColor() const
{
    return impl->darkLedColor;
}

void QLedMatrix::setDarkLedColor(const QColor& color)
{
    if (impl->darkLedColor == color)
        return;
    const QRgb previous = impl->darkLedColor.rgba();
    impl->darkLedColor = color;
    for (QVector<QRgb>& column : impl->leds)
        std::replace(column.begin(), column.end(), previous, color.rgba());
    impl->UpdateAll();
}

int QLedMatrix::rows() const
{
    return impl->rows;
}

void QLedMatrix::setRowCount(int count)
{
    if (count < 0 || count == impl->rows)
        return;
    if (IsReasonable(count, impl->columns))
        impl->Resize(count, impl->columns);
    else
        qWarning("QLedMatrix::setRowCount: %d rows of %d LEDs are too many", count, impl->columns);
}

int QLedMatrix::columns() const
{
    return impl->columns;
}

void QLedMatrix::setColumnCount(int count)
{
    if (count < 0 || count == impl->columns)
        return;
    if (IsReasonable(impl->rows, count))
        impl->Resize(impl->rows, count);
    else
        qWarning("QLedMatrix::setColumnCount: %d columns of %d LEDs are too many", count, impl->rows);
}

QRgb QLedMatrix::colorAt(int row, int column) const
{
    if (!impl->Has(row, column)) {
        qWarning("QLedMatrix::colorAt: coordinate (row=%d, col=%d) out of range", row, column);
        return impl->darkLedColor.rgba();
    }
    return impl->leds[column][row];
}

void QLedMatrix::setColorAt(int row, int column, QRgb color, bool update)
{
    if (!impl->Has(row, column)) {
        qWarning("QLedMatrix::setColorAt: coordinate (row=%d, col=%d) out of range", row, column);
        return;
    }
    impl->leds[column][row] = color;
    // A hidden widget is repainted as a whole when it is shown.
    if (isVisible())
        impl->stale |= QRect(column, row, 1, 1);
    if (update && !impl->stale.isNull())
        impl->UpdateStale();
}

void QLedMatrix::clear()
{
    for (QVector<QRgb>& column : impl->leds)
        column.fill(impl->darkLedColor.rgba());
    impl->UpdateAll();
}

QSize QLedMatrix::sizeHint() const
{
    if (impl->rows > 0 && impl->columns > 0)
        return {qRound(impl->logicalWidth), qRound(impl->logicalHeight)};
    qWarning("QLedMatrix::sizeHint: no rows or columns to display, defaulting size to (10,10)");
    return {CELL, CELL};
}

void QLedMatrix::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (impl->backgroundMode == Qt::OpaqueMode)
        painter.fillRect(rect(), impl->background);
    if (impl->rows == 0 || impl->columns == 0 || size().isEmpty())
        return;
    const QTransform gridToWidget = impl->GridToWidget();
    const QRectF exposed = gridToWidget.inverted().mapRect(QRectF(event->rect()));
    const Range rowRange = CellsBetween(exposed.top(), exposed.bottom(), impl->rows);
    const Range columnRange = CellsBetween(exposed.left(), exposed.right(), impl->columns);
    if (rowRange.last < rowRange.first || columnRange.last < columnRange.first)
        return;
    painter.setTransform(gridToWidget, true);
    if (CanUseCache(painter, painter.deviceTransform().mapRect(exposed)))
        impl->PaintCachedCircles(painter, rowRange, columnRange);
    else
        impl->PaintCircles(painter, rowRange, columnRange);
}
