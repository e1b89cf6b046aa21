#pragma once

#include <Zelkor/HostExport.h>

#include <QString>

class QWidget;

namespace Zelkor::Util {

/// Sets the dynamic property `name` of `widget` to `value` and polishes the widget again, so that style-sheet
/// selectors on that property take effect at once. Does nothing for a null widget.
VX_HOST_EXPORT void ApplyWidgetStyle(QWidget* widget, const QString& value, const char* name);

} // namespace Zelkor::Util
