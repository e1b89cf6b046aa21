#pragma once

class QAbstractButton;

namespace Zelkor::Recorder {

/// Shows a speech bubble above the button that chooses the source. It closes after a while, when it is clicked, and
/// when the button is clicked. The button's window owns it.
void ShowSourceHint(QAbstractButton* button);

} // namespace Zelkor::Recorder
