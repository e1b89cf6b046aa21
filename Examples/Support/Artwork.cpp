#include "Artwork.h"

#include <UI/Kit/ZStyleSheet.h>

#include <QGuiApplication>
#include <QPainter>

namespace Zelkor::Examples {

namespace {

constexpr int ICON_SIZE = 48;
constexpr int SPACING = 12;
constexpr double TEXT_OPACITY = 0.75;

constexpr int BUBBLE_RADIUS = 8;
constexpr int TAIL_INSET = 24; ///< distance of the tail's tip from the side of the bubble
constexpr int TAIL_HALF_WIDTH = 12;

} // namespace

QImage NoPictureImage(const QSize& size, const QColor& color, const QString& text)
{
    if (size.isEmpty())
        return QImage();
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const QFontMetrics metrics(QGuiApplication::font());
    const int iconSize = qMin(ICON_SIZE, size.height() / 3);
    const int top = (size.height() - iconSize - SPACING - metrics.height()) / 2;
    painter.setOpacity(TEXT_OPACITY);
    painter.drawImage(QRect((size.width() - iconSize) / 2, top, iconSize, iconSize),
                      ZStyleSheet::icon("camera-off").pixmap(iconSize).toImage());
    painter.setPen(color);
    painter.setFont(QGuiApplication::font());
    painter.drawText(QRect(0, top + iconSize + SPACING, size.width(), metrics.height()), Qt::AlignCenter,
                     metrics.elidedText(text, Qt::ElideRight, size.width()));
    return image;
}

QImage SpeechBubbleImage(const QSize& size, Qt::LayoutDirection direction)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    const int bottom = size.height() - SPEECH_BUBBLE_TAIL;
    const int tip = direction == Qt::RightToLeft ? size.width() - TAIL_INSET : TAIL_INSET;
    painter.drawPolygon(QPolygon(
        {QPoint(tip - TAIL_HALF_WIDTH, bottom), QPoint(tip + TAIL_HALF_WIDTH, bottom), QPoint(tip, size.height())}));
    painter.drawRoundedRect(QRect(0, 0, size.width(), bottom), BUBBLE_RADIUS, BUBBLE_RADIUS);
    return image;
}

} // namespace Zelkor::Examples
