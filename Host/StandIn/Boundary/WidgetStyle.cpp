#include <Zelkor/Util/WidgetStyle.h>

#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace Zelkor::Util {

void ApplyWidgetStyle(QWidget* widget, const QString& value, const char* name)
{
    if (!widget)
        return;
    widget->setProperty(name, value);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    // The new rules may change the size hint and the painting.
    widget->updateGeometry();
    widget->update();
}

} // namespace Zelkor::Util
