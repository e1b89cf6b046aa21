#pragma once

#include <QPair>
#include <QString>
#include <QVector>

#include <functional>

class QWidget;

namespace Zelkor::Catalogue {

/// Groups of widgets by name, with functions that create a page of them.
using WidgetGroups = QVector<QPair<QString, std::function<QWidget*(QWidget* parent)>>>;

/// Returns the item views, tabs and containers, main windows, menus and dialogs of Qt.
WidgetGroups QtWindowGroups();

} // namespace Zelkor::Catalogue
