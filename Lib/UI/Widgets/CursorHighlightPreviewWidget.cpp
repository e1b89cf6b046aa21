#include <UI/Widgets/CursorHighlightPreviewWidget.h>

#include <UI/Common/AccessibleFactory.h>

#include <Zelkor/Util/ImageGenerator.h>

#include <QCoreApplication>
#include <QPainter>

namespace Zelkor::Vx::UI {

namespace {

constexpr int SIDE = 84;
constexpr int SQUARE = 6;

// The corners of the preview are 60 pixels from the centre, an eighth of this radius. There the cubic gradient has
// fallen by 1/500, which is below one of 255 steps. A larger disc would look the same but could take gigabytes.
constexpr int LARGEST_RADIUS = 512;

// Limits of the widget sizes that Qt supports.
constexpr int SMALLEST_BORDER = -SIDE / 2;
constexpr int LARGEST_BORDER = (QWIDGETSIZE_MAX - SIDE) / 2;

int UsableBorder(int borderWidth)
{
    return qBound(SMALLEST_BORDER, borderWidth, LARGEST_BORDER);
}

void PaintCheckerboard(QPainter& painter, const QPoint& corner, const QSize& size)
{
    for (int i = 0; i < size.width() / SQUARE; ++i) {
        for (int j = 0; j < size.height() / SQUARE; ++j) {
            const QRect square(corner + QPoint(i, j) * SQUARE, QSize(SQUARE, SQUARE));
            painter.fillRect(square, (i + j) % 2 == 0 ? Qt::white : Qt::darkGray);
        }
    }
}

// Fills the frame, since a pen rounds the corners of thick frames, misses the edge at some device pixel ratios, and
// draws a line for a width of 0. Fills nothing for a negative width.
void PaintFrame(QPainter& painter, const QRect& outside, int width, const QColor& color)
{
    for (const QRect& part : QRegion(outside) - outside.adjusted(width, width, -width, -width))
        painter.fillRect(part, color);
}

class AccessiblePreview : public Common::AccessibleAs<QAccessible::Graphic>
{
public:
    using AccessibleAs::AccessibleAs;

    QString text(QAccessible::Text kind) const override
    {
        QString own = AccessibleAs::text(kind);
        if (kind != QAccessible::Name || !own.isEmpty())
            return own;
        return QCoreApplication::translate("CursorHighlightPreviewWidget", "Preview of the cursor highlight");
    }
};

} // namespace

const QSize CursorHighlightPreviewWidget::previewSize(SIDE, SIDE);

CursorHighlightPreviewWidget::CursorHighlightPreviewWidget(QWidget* parent) : QWidget(parent)
{
    Common::AccessibleFactory<CursorHighlightPreviewWidget, AccessiblePreview>::Install();
    UpdateSize();
}

CursorHighlightPreviewWidget::~CursorHighlightPreviewWidget() = default;

int CursorHighlightPreviewWidget::GetRadius() const
{
    return radius;
}

QColor CursorHighlightPreviewWidget::GetColor()
{
    return color;
}

int CursorHighlightPreviewWidget::GetBorderWidth() const
{
    return borderWidth;
}

void CursorHighlightPreviewWidget::SetBorderWidth(int width)
{
    borderWidth = width;
    UpdateSize();
}

QColor CursorHighlightPreviewWidget::GetBorderColor() const
{
    return borderColor;
}

void CursorHighlightPreviewWidget::SetBorderColor(const QColor& newColor)
{
    if (borderColor == newColor)
        return;
    borderColor = newColor;
    update();
}

void CursorHighlightPreviewWidget::SetRadius(int newRadius)
{
    if (radius == newRadius)
        return;
    radius = newRadius;
    UpdateImage();
    update();
}

void CursorHighlightPreviewWidget::SetDiameter(int diameter)
{
    SetRadius(diameter / 2);
}

void CursorHighlightPreviewWidget::SetColor(const QColor& newColor)
{
    if (color == newColor)
        return;
    color = newColor;
    UpdateImage();
    update();
}

void CursorHighlightPreviewWidget::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    const int border = UsableBorder(borderWidth);
    PaintCheckerboard(painter, QPoint(border, border), previewSize);
    // The disc has one pixel per logical pixel. Smooth scaling is good enough for its soft edge at other ratios.
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const int place = border + (previewSize.width() - image.width()) / 2;
    painter.drawImage(place, place, image);
    PaintFrame(painter, rect(), border, borderColor);
}

void CursorHighlightPreviewWidget::UpdateImage()
{
    const int side = 2 * qBound(0, radius, LARGEST_RADIUS);
    image = Zelkor::Util::ImageGenerator::CreateCircleWithAlphaGradientCubic(QSize(side, side), color);
}

void CursorHighlightPreviewWidget::UpdateSize()
{
    const int border = UsableBorder(borderWidth);
    setFixedSize(previewSize + QSize(2 * border, 2 * border));
}

} // namespace Zelkor::Vx::UI
