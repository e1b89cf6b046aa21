#pragma once

#include <UI/Common/Export.h>

#include <QTabWidget>

namespace Zelkor::Vx {

/// A tab widget whose tab bar is a `HorizontalTabBar`, which it owns and `tabBar` returns. GUI thread only.
class VX_WIDGETS_EXPORT CustomTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit CustomTabWidget(QWidget* parent);
    ~CustomTabWidget() override;
};

} // namespace Zelkor::Vx
