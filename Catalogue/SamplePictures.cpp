#include "SamplePictures.h"

#include <QPainter>

#include <cstring>

namespace Zelkor::Catalogue {

namespace {

QImage DrawColorBars(const QSize& size)
{
    // 75 % colour bars, in order of decreasing luminance.
    constexpr QRgb BARS[] = {0xbfbfbf, 0xbfbf00, 0x00bfbf, 0x00bf00, 0xbf00bf, 0xbf0000, 0x0000bf};
    constexpr int BAR_COUNT = int(sizeof(BARS) / sizeof(BARS[0]));
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const int rampTop = size.height() * 3 / 4;
    for (int i = 0; i < BAR_COUNT; ++i) {
        const int left = size.width() * i / BAR_COUNT;
        painter.fillRect(left, 0, size.width() - left, rampTop, QColor(BARS[i]));
    }
    QLinearGradient ramp(0, 0, size.width(), 0);
    ramp.setColorAt(0, Qt::black);
    ramp.setColorAt(1, Qt::white);
    painter.fillRect(0, rampTop, size.width(), size.height() - rampTop, ramp);
    const int rim = qMax(2, size.width() / 160);
    painter.setPen(QPen(Qt::white, rim, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(QPointF(), size).adjusted(rim / 2., rim / 2., -rim / 2., -rim / 2.));
    return image;
}

} // namespace

boost::intrusive_ptr<StandIn::VideoFrame> ColorBarsFrame(const QSize& size)
{
    const QImage image = DrawColorBars(size);
    StandIn::FrameFormat format;
    format.pixFmt = Proc::PixFmt::BGRA;
    format.width = size.width();
    format.height = size.height();
    return StandIn::VideoFrame::Create(format, [&image](const auto& data, const auto& strides) {
        for (int y = 0; y < image.height(); ++y)
            std::memcpy(data[0] + std::ptrdiff_t(y) * strides[0], image.constScanLine(y),
                        std::size_t(image.width()) * 4);
    });
}

QImage PortraitImage(const QSize& size)
{
    if (size.isEmpty())
        return QImage();
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // Uses a coordinate system of 4 by 3 units.
    painter.scale(size.width() / 4., size.height() / 3.);
    QLinearGradient wall(0, 0, 4, 3);
    wall.setColorAt(0, QColor(0x5f, 0x86, 0xc9));
    wall.setColorAt(1, QColor(0x2c, 0x3f, 0x72));
    painter.fillRect(QRectF(0, 0, 4, 3), wall);
    painter.setBrush(QColor(0xff, 0xe2, 0xa8));
    painter.drawRoundedRect(QRectF(0.35, 0.3, 0.8, 1.1), 0.06, 0.06);
    painter.setBrush(QColor(0x3f, 0x8f, 0x6b));
    painter.drawRoundedRect(QRectF(3.2, 1.5, 0.5, 1.5), 0.25, 0.25);
    painter.setBrush(QColor(0xe5, 0x6b, 0x5d));
    painter.drawRoundedRect(QRectF(0.95, 2.1, 2.1, 1.4), 0.6, 0.6);
    painter.setBrush(QColor(0x4a, 0x2f, 0x2a));
    painter.drawEllipse(QRectF(1.36, 0.5, 1.28, 1.45));
    painter.setBrush(QColor(0xf2, 0xc4, 0xa0));
    painter.drawRoundedRect(QRectF(1.8, 1.7, 0.4, 0.6), 0.2, 0.2);
    painter.drawEllipse(QRectF(1.5, 0.75, 1, 1.25));
    return image;
}

} // namespace Zelkor::Catalogue
