#include "WidgetCollection.h"
#include "FormWidget.h"

#include <Catalogue/Catalogue.h>

namespace Zelkor::Designer {

WidgetCollection::WidgetCollection(QObject* parent) : QObject(parent)
{
    for (const Catalogue::Entry& entry : Catalogue::Entries()) {
        if (entry.form.metaObject)
            widgets.push_back(std::make_unique<FormWidget>(entry));
    }
}

WidgetCollection::~WidgetCollection() = default;

QList<QDesignerCustomWidgetInterface*> WidgetCollection::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface*> list;
    for (const auto& widget : widgets)
        list.append(widget.get());
    return list;
}

} // namespace Zelkor::Designer
