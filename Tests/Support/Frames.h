#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <QColor>
#include <QImage>
#include <QSize>

#include <cstring>

namespace Support {

using namespace Zelkor;

/// Creates a frame of one colour in `PixFmt::BGRA`. `alpha` is the fourth byte, which must not have an effect.
inline boost::intrusive_ptr<StandIn::VideoFrame> SolidFrame(const QSize& size, const QColor& color, int alpha = 255)
{
    const StandIn::FrameFormat format{Proc::PixFmt::BGRA, size.width(), size.height()};
    return StandIn::VideoFrame::Create(format, [&](const auto& data, const auto& strides) {
        QColor pixel = color;
        pixel.setAlpha(alpha);
        QImage(data[0], size.width(), size.height(), strides[0], QImage::Format_ARGB32).fill(pixel);
    });
}

/// Creates a frame of one grey in `PixFmt::NV12`, full range.
inline boost::intrusive_ptr<StandIn::VideoFrame> GreyFrame(const QSize& size, int grey)
{
    StandIn::FrameFormat format{Proc::PixFmt::NV12, size.width(), size.height()};
    format.range = StandIn::ColorRange::Full;
    return StandIn::VideoFrame::Create(format, [&](const auto& data, const auto& strides) {
        std::memset(data[0], grey, size_t(strides[0]) * size.height());
        std::memset(data[1], 128, size_t(strides[1]) * ((size.height() + 1) / 2));
    });
}

} // namespace Support
