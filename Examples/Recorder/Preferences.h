#pragma once

#include <QColor>

namespace Zelkor::Recorder {

/// The values of the settings dialog.
struct Preferences
{
    int countdownSeconds = 3; ///< between the click on the record button and the recording
    int quality = 2;          ///< index, in order of increasing file size
    QColor highlightColor{255, 214, 0, 200};
    int highlightDiameter = 56; ///< diameter of the disc around the pointer, in pixels
};

} // namespace Zelkor::Recorder
