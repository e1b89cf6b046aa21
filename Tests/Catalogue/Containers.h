#pragma once

#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <QDialog>
#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>
#include <QWidgetAction>

#include <functional>

using OpenFunction = std::function<void()>; ///< shows the container if it is hidden

inline OpenFunction Fill(QWidget* window, QWidget* content)
{
    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    return [] {};
}

/// Returns a page that shows a widget at its own size.
inline QWidget* PageWith(QWidget* widget)
{
    auto* page = new QWidget;
    (new QVBoxLayout(page))->addWidget(widget, 0, Qt::AlignLeading | Qt::AlignTop);
    return page;
}

/// A container that can hold any widget.
struct Container
{
    const char* name;
    OpenFunction (*create)(QWidget* widget, QWidget* window); ///< in `window`, which owns it
};

/// A plain window first.
const Container CONTAINERS[] = {
    {"plain window", [](QWidget* widget, QWidget* window) { return Fill(window, PageWith(widget)); }},
    {"splitter",
     [](QWidget* widget, QWidget* window) {
         auto* splitter = new QSplitter;
         splitter->addWidget(widget);
         return Fill(window, splitter);
     }},
    {"scroll area",
     [](QWidget* widget, QWidget* window) {
         auto* area = new QScrollArea;
         area->setWidget(widget);
         return Fill(window, area);
     }},
    {"MDI area",
     [](QWidget* widget, QWidget* window) {
         auto* area = new QMdiArea;
         area->addSubWindow(PageWith(widget))->showMaximized();
         return Fill(window, area);
     }},
    {"graphics proxy",
     [](QWidget* widget, QWidget* window) -> OpenFunction {
         auto* view = new QGraphicsView;
         view->setScene(new QGraphicsScene(view));
         widget->setParent(nullptr);
         QGraphicsItem* proxy = view->scene()->addWidget(widget);
         Fill(window, view);
         return [=] {
             view->setFocus();
             proxy->setFocus();
         };
     }},
    {"menu",
     [](QWidget* widget, QWidget* window) -> OpenFunction {
         auto* menu = new QMenu(window);
         menu->addAction(QStringLiteral("Other"));
         auto* action = new QWidgetAction(menu);
         action->setDefaultWidget(PageWith(widget));
         menu->addAction(action);
         return [=] {
             if (!menu->isVisible())
                 menu->popup(window->mapToGlobal(QPoint(0, 0)));
         };
     }},
    {"pop-up panel",
     [](QWidget* widget, QWidget* window) -> OpenFunction {
         auto* button = new Zelkor::Vx::UI::ButtonWithPopUpContainer(window);
         button->setText(QStringLiteral("Panel"));
         button->AppendWidget(PageWith(widget));
         return [=] {
             if (!button->GetWidget(0)->isVisible())
                 button->ShowPopup();
         };
     }},
    {"dialog",
     [](QWidget* widget, QWidget* window) -> OpenFunction {
         auto* dialog = new QDialog(window);
         Fill(dialog, PageWith(widget));
         return [=] { dialog->show(); };
     }},
};
