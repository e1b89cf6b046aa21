#include <UI/Widgets/CustomTabWidget.h>

#include <UI/Widgets/HorizontalTabBar.h>

namespace Zelkor::Vx {

CustomTabWidget::CustomTabWidget(QWidget* parent) : QTabWidget(parent)
{
    setTabBar(new HorizontalTabBar(nullptr));
}

CustomTabWidget::~CustomTabWidget() = default;

} // namespace Zelkor::Vx
