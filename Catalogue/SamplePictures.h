#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <QImage>

namespace Zelkor::Catalogue {

/// Returns a still frame: colour bars above a grey ramp, with a white border.
boost::intrusive_ptr<StandIn::VideoFrame> ColorBarsFrame(const QSize& size);

/// Returns a drawn portrait, head and shoulders in front of a window; null for an empty size.
QImage PortraitImage(const QSize& size);

} // namespace Zelkor::Catalogue
