#include <Support/Frames.h>

#include <QImage>

#include <cstring>

namespace Support {

using namespace Zelkor;

boost::intrusive_ptr<StandIn::VideoFrame> SolidFrame(const QSize& size, const QColor& color, int alpha)
{
    StandIn::FrameFormat format;
    format.pixFmt = Proc::PixFmt::BGRA;
    format.width = size.width();
    format.height = size.height();
    return StandIn::VideoFrame::Create(format, [&](const auto& data, const auto& strides) {
        QColor pixel = color;
        pixel.setAlpha(alpha);
        QImage(data[0], size.width(), size.height(), strides[0], QImage::Format_ARGB32).fill(pixel);
    });
}

boost::intrusive_ptr<StandIn::VideoFrame> GreyFrame(const QSize& size, int grey)
{
    StandIn::FrameFormat format;
    format.pixFmt = Proc::PixFmt::NV12;
    format.range = StandIn::ColorRange::Full;
    format.width = size.width();
    format.height = size.height();
    return StandIn::VideoFrame::Create(format, [&](const auto& data, const auto& strides) {
        std::memset(data[0], grey, size_t(strides[0]) * size.height());
        std::memset(data[1], 128, size_t(strides[1]) * ((size.height() + 1) / 2));
    });
}

} // namespace Support
