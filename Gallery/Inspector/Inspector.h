#pragma once

#include <UI/Widgets/CustomTabWidget.h>

#include <QVariant>

namespace Zelkor::Gallery {

class ObjectTree;
class PropertyPanel;
class SignalLog;

/// What there is to know about a widget of a page, in tabs: its properties, the signals of the page, the objects
/// inside.
class Inspector : public Vx::CustomTabWidget
{
    Q_OBJECT

public:
    explicit Inspector(QWidget* parent = nullptr);

    /// Shows `widget`; its properties are those of the part that is of the class `className`, without namespace.
    /// `defaults` are values by property name. The widget may die at any time.
    void Inspect(QWidget* widget, const QString& className, const QVariantMap& defaults);

    PropertyPanel* Properties() const { return properties; }
    SignalLog* Signals() const { return signalLog; }
    ObjectTree* Objects() const { return objects; }

private:
    PropertyPanel* properties;
    SignalLog* signalLog;
    ObjectTree* objects;
};

} // namespace Zelkor::Gallery
