#pragma once

class QString;
class QWidget;

namespace Zelkor::Designer {

/// Outlines a widget and writes `text` into it while it is in a form that is being edited, but not in a preview. For
/// widgets that are blank until code fills them.
void ShowPlaceholder(QWidget* widget, const QString& text);

} // namespace Zelkor::Designer
