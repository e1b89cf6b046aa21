#pragma once

#include <QAccessibleWidget>
#include <QLatin1String>
#include <QObject>
#include <QString>

namespace Zelkor::Vx::UI::Common {

/// Installs `Interface`, which is constructed from a `Widget*`, as the accessible interface of `Widget` and of classes
/// derived from it. GUI thread only.
template<class Widget, class Interface>
class AccessibleFactory
{
public:
    /// Called from each constructor of `Widget`. Qt ignores a factory that is installed already, but forgets all of
    /// them with the application object, of which a test program creates several.
    static void Install()
    {
        QAccessible::installFactory(Create);
        // Constructed after Qt's list of factories and so destroyed before it.
        static const Removal REMOVAL;
    }

private:
    /// Removes the factory when the library is unloaded.
    struct Removal
    {
        ~Removal() { QAccessible::removeFactory(Create); }
    };

    static QAccessibleInterface* Create(const QString& className, QObject* object)
    {
        // Qt calls this for the class of the object and then for each base class.
        const bool isOurs = className == QLatin1String(Widget::staticMetaObject.className());
        return isOurs ? new Interface(static_cast<Widget*>(object)) : nullptr;
    }
};

/// The interface of a widget with another role and nothing else to report.
template<QAccessible::Role ROLE>
class AccessibleAs : public QAccessibleWidget
{
public:
    explicit AccessibleAs(QWidget* widget) : QAccessibleWidget(widget, ROLE) {}
};

} // namespace Zelkor::Vx::UI::Common
