#pragma once

#include <UI/Common/Export.h>

#include <QTabWidget>

namespace Zelkor::Vx {

/// A tab widget that owns a `HorizontalTabBar` as its `tabBar()`. GUI thread only.
class VX_WIDGETS_EXPORT CustomTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit CustomTabWidget(QWidget* parent);
    ~CustomTabWidget() override;
};

} // namespace Zelkor::Vx
