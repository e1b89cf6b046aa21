#include <UI/Common/ObjectNames.h>

namespace Zelkor::Vx::UI::Common {

const QString TEXT_LABEL = QStringLiteral("TextLabel");
const QString HOT_KEY_LABEL = QStringLiteral("HotKeyLabel");
const QString ICON_LABEL = QStringLiteral("IconLabel");
const QString FAST_CAPTURE_BUTTON = QStringLiteral("FastCaptureButton");
const QString TEXT_FAST_PRESET_LABEL = QStringLiteral("TextFastPresetLabel");
const QString HOT_KEY_FAST_PRESET_LABEL = QStringLiteral("HotKeyFastPresetLabel");

} // namespace Zelkor::Vx::UI::Common
