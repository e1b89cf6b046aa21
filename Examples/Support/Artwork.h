#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace Zelkor::Examples {

/// Returns the default image of a preview of `size`: an icon of the style sheet above a line of text in `color`, on a
/// transparent background. Null for an empty size.
QImage NoPictureImage(const QSize& size, const QColor& color, const QString& text);

/// Returns the mask of a speech bubble of `size`, opaque inside. Its tail points down near the leading side and is
/// `SPEECH_BUBBLE_TAIL` pixels high.
QImage SpeechBubbleImage(const QSize& size, Qt::LayoutDirection direction);

constexpr int SPEECH_BUBBLE_TAIL = 12;

} // namespace Zelkor::Examples
