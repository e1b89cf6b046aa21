#pragma once

#include <QAccessibleWidget>
#include <QLatin1String>
#include <QObject>
#include <QString>

namespace Zelkor::Vx::UI::Common {

/// Has assistive technology meet the objects of the class `Widget`, and of classes derived from it, as `Interface`,
/// which is made from a `Widget*`. GUI thread only.
template<class Widget, class Interface>
class AccessibleFactory
{
public:
    /// To be called by each constructor of `Widget`: Qt takes a factory once, but forgets it with the application
    /// object, and a program may make another one.
    static void Install()
    {
        QAccessible::installFactory(Create);
        // Made after Qt's list of factories, so it goes before that.
        static const Removal REMOVAL;
    }

private:
    /// The library may be unloaded, and the factory is part of it.
    struct Removal
    {
        ~Removal() { QAccessible::removeFactory(Create); }
    };

    static QAccessibleInterface* Create(const QString& className, QObject* object)
    {
        // Qt goes up the classes of the object, one by one.
        const bool isOurs = className == QLatin1String(Widget::staticMetaObject.className());
        return isOurs ? new Interface(static_cast<Widget*>(object)) : nullptr;
    }
};

/// A widget of this kind, which has nothing to tell but what each widget has.
template<QAccessible::Role ROLE>
class AccessibleAs : public QAccessibleWidget
{
public:
    explicit AccessibleAs(QWidget* widget) : QAccessibleWidget(widget, ROLE) {}
};

} // namespace Zelkor::Vx::UI::Common
