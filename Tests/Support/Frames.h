#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <QColor>
#include <QSize>

namespace Support {

/// Creates a frame of one colour in `PixFmt::BGRA`. `alpha` is the fourth byte, which must not have an effect.
boost::intrusive_ptr<Zelkor::StandIn::VideoFrame> SolidFrame(const QSize& size, const QColor& color, int alpha = 255);

/// Creates a frame of one grey in `PixFmt::NV12`, full range.
boost::intrusive_ptr<Zelkor::StandIn::VideoFrame> GreyFrame(const QSize& size, int grey);

} // namespace Support
