#pragma once

#include <Zelkor/HostExport.h>

#include <QString>

class QWidget;

namespace Zelkor::Util {

/// Sets the dynamic property `name` of `widget` to `value` and repolishes the widget, so that style sheet selectors on
/// the property take effect at once. Does nothing for a null widget. GUI thread only.
VX_HOST_EXPORT void ApplyWidgetStyle(QWidget* widget, const QString& value, const char* name);

} // namespace Zelkor::Util
