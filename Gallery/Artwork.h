#pragma once

#include <Zelkor/StandIn/VideoFrame.h>

#include <QColor>
#include <QImage>
#include <QString>

namespace Zelkor::Gallery {

/// What a preview of `size` shows when it has no picture: an icon of the style sheet with a line of text in `color`,
/// on nothing. Null for an empty size.
QImage NoPictureImage(const QSize& size, const QColor& color, const QString& text);

/// A still frame: colour bars above a grey ramp, with a white rim that shows where the frame ends.
boost::intrusive_ptr<StandIn::VideoFrame> ColorBarsFrame(const QSize& size);

} // namespace Zelkor::Gallery
