#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>
#include <vector>

namespace Zelkor::Designer {

/// The plugin: all widgets of the catalogue with form support. Owns the descriptions it returns.
class WidgetCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)

public:
    explicit WidgetCollection(QObject* parent = nullptr);
    ~WidgetCollection() override;

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    std::vector<std::unique_ptr<QDesignerCustomWidgetInterface>> widgets;
};

} // namespace Zelkor::Designer
