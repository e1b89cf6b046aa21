#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <QImage>

namespace Zelkor::Catalogue {

/// A still frame: colour bars above a grey ramp, with a white rim along its edges.
boost::intrusive_ptr<StandIn::VideoFrame> ColorBarsFrame(const QSize& size);

/// A drawn portrait: head and shoulders in front of a wall with a window. Null for an empty size.
QImage PortraitImage(const QSize& size);

} // namespace Zelkor::Catalogue
