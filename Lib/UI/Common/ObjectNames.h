#pragma once

#include <QString>

namespace Zelkor::Vx::UI::Common {

// Object names of parts that several widgets have, for selectors of style sheets.
extern const QString TEXT_LABEL;
extern const QString HOT_KEY_LABEL;
extern const QString ICON_LABEL;
extern const QString FAST_CAPTURE_BUTTON;
extern const QString TEXT_FAST_PRESET_LABEL;
extern const QString HOT_KEY_FAST_PRESET_LABEL;

} // namespace Zelkor::Vx::UI::Common
