#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

#include <functional>

namespace Support {

/// Returns the colour at the centre of a logical pixel, for a picture of any device pixel ratio.
inline QColor ColorAt(const QImage& picture, const QPoint& pixel)
{
    const qreal ratio = picture.devicePixelRatio();
    return picture.pixelColor(int((pixel.x() + 0.5) * ratio), int((pixel.y() + 0.5) * ratio));
}

/// Renders a widget and its children on a plain backdrop, without the window background.
inline QImage Render(QWidget& widget, const QColor& backdrop, qreal pixelRatio = 1)
{
    QImage image((QSizeF(widget.size()) * pixelRatio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(backdrop);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

/// Returns the bounding rectangle of all pixels for which `isInk` returns true.
inline QRect InkOf(const QImage& picture, const std::function<bool(const QColor&)>& isInk)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (isInk(picture.pixelColor(x, y)))
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

/// Returns the largest difference of a channel, 0 to 255, or 256 for pictures of different sizes.
inline int LargestDifference(const QImage& a, const QImage& b)
{
    if (a.size() != b.size())
        return 256;
    const QImage first = a.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage second = b.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int largest = 0;
    for (int i = 0; i < first.sizeInBytes(); ++i)
        largest = qMax(largest, qAbs(first.constBits()[i] - second.constBits()[i]));
    return largest;
}

} // namespace Support
