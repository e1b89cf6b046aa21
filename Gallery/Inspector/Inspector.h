#pragma once

#include <UI/Widgets/CustomTabWidget.h>

#include <QVariant>

namespace Zelkor::Gallery {

class ObjectTree;
class PropertyPanel;
class SignalLog;

/// Shows the properties and child objects of a widget and the signals of its page, in tabs.
class Inspector : public Vx::CustomTabWidget
{
    Q_OBJECT

public:
    explicit Inspector(QWidget* parent = nullptr);

    /// Inspects `widget`. Shows the properties of its part of class `className`, without namespace. `defaults` are
    /// values by property name. The widget may be deleted at any time.
    void Inspect(QWidget* widget, const QString& className, const QVariantMap& defaults);

    PropertyPanel* Properties() const { return properties; }
    SignalLog* Signals() const { return signalLog; }
    ObjectTree* Objects() const { return objects; }

private:
    QWidget* CreateObjectPage();

    PropertyPanel* properties;
    SignalLog* signalLog;
    ObjectTree* objects;
};

} // namespace Zelkor::Gallery
