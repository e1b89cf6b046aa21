#include <UI/Widgets/PixmapCrop.h>

#include <QPainter>

namespace Zelkor::Vx::PixmapCrop {

namespace {

// The sides on which the whole and the part have a corner in common.
QPoint OffsetOf(const QRect& whole, const QRect& part, PixmapWidget::MaskAnchor anchor)
{
    switch (anchor) {
    case PixmapWidget::ANCHOR_CENTER:
        return whole.center() - part.center();
    case PixmapWidget::ANCHOR_TOP_RIGHT:
        return whole.topRight() - part.topRight();
    case PixmapWidget::ANCHOR_BOTTOM_LEFT:
        return whole.bottomLeft() - part.bottomLeft();
    case PixmapWidget::ANCHOR_BOTTOM_RIGHT:
        return whole.bottomRight() - part.bottomRight();
    case PixmapWidget::ANCHOR_TOP_LEFT:
    default:
        return QPoint(0, 0);
    }
}

// A part of an image, over the image's own memory where whole bytes make a pixel.
QImage PartOf(const QImage& image, const QRect& part)
{
    if (part == image.rect())
        return image;
    const int bytes = image.depth() / 8;
    const bool isPlain = image.depth() % 8 == 0 && image.colorCount() == 0;
    if (!isPlain || !image.rect().contains(part))
        return image.copy(part);
    const uchar* corner = image.constScanLine(part.top()) + std::ptrdiff_t(part.left()) * bytes;
    return QImage(corner, part.width(), part.height(), image.bytesPerLine(), image.format());
}

// The image inside the ellipse that touches its sides, on transparent ground.
QImage Ellipse(const QImage& image)
{
    QImage masked(image.size(), QImage::Format_ARGB32_Premultiplied);
    masked.fill(Qt::transparent);
    QPainter painter(&masked);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(image));
    painter.drawEllipse(masked.rect());
    return masked;
}

} // namespace

QRect CutRect(const QSize& picture, const QSize& area, PixmapWidget::MaskAnchor anchor)
{
    if (area.isEmpty() || picture.isEmpty())
        return QRect();
    const double shape = double(area.width()) / area.height();
    QSizeF cut(picture.width(), picture.width() / shape);
    if (cut.height() > picture.height())
        cut = QSizeF(shape * picture.height(), picture.height());
    const QRect part(QPoint(0, 0), cut.toSize());
    return part.translated(OffsetOf(QRect(QPoint(0, 0), picture), part, anchor));
}

QImage Render(const QImage& picture, const QRect& cut, const QSize& size, bool ellipse)
{
    if (cut.isEmpty() || size.isEmpty())
        return QImage();
    const auto scale = [&](const QImage& image) {
        // At its own size it would be returned as it is, over memory that is not its own.
        return image.size() == size ? image.copy()
                                    : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage part = PartOf(picture, cut);
    if (!ellipse)
        return scale(part);
    // The ellipse is drawn over the smaller of the two pictures. For one that grows the order shows: the edge is the
    // source's and grows with it. For one that shrinks it does not.
    const bool grows = size.width() > cut.width() || size.height() > cut.height();
    return grows ? scale(Ellipse(part)) : Ellipse(scale(part));
}

} // namespace Zelkor::Vx::PixmapCrop
