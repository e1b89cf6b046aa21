#pragma once

class QAbstractButton;

namespace Zelkor::Recorder {

/// Shows a speech bubble above the button that chooses the source. It goes by itself, when it is pressed, and when the
/// button is. The button's window owns it.
void ShowSourceHint(QAbstractButton* button);

} // namespace Zelkor::Recorder
