#include <UI/Widgets/PixmapCrop.h>

#include <QPainter>

namespace Zelkor::Vx::PixmapCrop {

namespace {

// Returns the offset of `part` in `whole`. QStyle::alignedRect() rounds the centre differently.
QPoint OffsetOf(const QRect& whole, const QRect& part, Qt::Alignment anchor)
{
    if (anchor == Qt::AlignCenter)
        return whole.center() - part.center();
    return QPoint(anchor & Qt::AlignRight ? whole.right() - part.right() : 0,
                  anchor & Qt::AlignBottom ? whole.bottom() - part.bottom() : 0);
}

// Returns a part of an image. Shares the image's memory where a pixel is a whole number of bytes.
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

// Returns the image with transparent pixels outside the inscribed ellipse.
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

QRect CropRect(const QSize& picture, const QSize& area, Qt::Alignment anchor)
{
    if (area.isEmpty() || picture.isEmpty())
        return QRect();
    const double shape = double(area.width()) / area.height();
    QSizeF crop(picture.width(), picture.width() / shape);
    if (crop.height() > picture.height())
        crop = QSizeF(shape * picture.height(), picture.height());
    const QRect part(QPoint(0, 0), crop.toSize());
    return part.translated(OffsetOf(QRect(QPoint(0, 0), picture), part, anchor));
}

QImage Render(const QImage& picture, const QRect& crop, const QSize& size, bool ellipse)
{
    if (crop.isEmpty() || size.isEmpty())
        return QImage();
    const auto scale = [&](const QImage& image) {
        // scaled() returns an image of the same size unchanged, which would share memory that it does not own.
        return image.size() == size ? image.copy()
                                    : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage part = PartOf(picture, crop);
    if (!ellipse)
        return scale(part);
    // Masks the smaller of the two pictures. When enlarging, the order is visible: the edge of the source grows with
    // it. When shrinking, it is not.
    const bool grows = size.width() > crop.width() || size.height() > crop.height();
    return grows ? scale(Ellipse(part)) : Ellipse(scale(part));
}

} // namespace Zelkor::Vx::PixmapCrop
