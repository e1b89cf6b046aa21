#include <UI/Widgets/CustomTabWidget.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Widgets/HorizontalTabBar.h>

namespace Zelkor::Vx {

CustomTabWidget::CustomTabWidget(QWidget* parent) : QTabWidget(parent)
{
    UI::Common::AccessibleFactory<CustomTabWidget, UI::Common::AccessibleAs<QAccessible::Grouping>>::Install();
    setTabBar(new HorizontalTabBar(nullptr));
}

CustomTabWidget::~CustomTabWidget() = default;

} // namespace Zelkor::Vx
