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

/// A drawn portrait: somebody's head and shoulders before a wall with a window. Null for an empty size.
QImage PortraitImage(const QSize& size);

/// The outline of a speech bubble that fills `size`, opaque inside. Its tail points down, near the side where a line of
/// text starts, and is `SPEECH_BUBBLE_TAIL` pixels high.
QImage SpeechBubbleImage(const QSize& size, Qt::LayoutDirection direction);

constexpr int SPEECH_BUBBLE_TAIL = 12;

} // namespace Zelkor::Gallery
