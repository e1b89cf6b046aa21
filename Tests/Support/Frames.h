#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <QColor>
#include <QSize>

namespace Support {

/// A frame of one colour in `PixFmt::BGRA`; `alpha` is its fourth byte, which has no meaning.
boost::intrusive_ptr<Zelkor::StandIn::VideoFrame> SolidFrame(const QSize& size, const QColor& color, int alpha = 255);

/// A frame of one grey in `PixFmt::NV12`, full range.
boost::intrusive_ptr<Zelkor::StandIn::VideoFrame> GreyFrame(const QSize& size, int grey);

} // namespace Support
