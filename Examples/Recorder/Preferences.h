#pragma once

#include <QColor>

namespace Zelkor::Recorder {

/// What the settings dialog sets.
struct Preferences
{
    int countdownSeconds = 3; ///< from the click on the record button to the recording
    int quality = 2;          ///< index, from the smallest file up
    QColor highlightColor{255, 214, 0, 200};
    int highlightDiameter = 56; ///< of the disc around the pointer, in pixels
};

} // namespace Zelkor::Recorder
