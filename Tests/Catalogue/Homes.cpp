#include <Catalogue/Homes.h>
#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <QDialog>
#include <QDockWidget>
#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QWidgetAction>

namespace {

using Zelkor::Vx::UI::ButtonWithPopUpContainer;

template<class Widget>
Widget* Fill(QWidget* window)
{
    auto* container = new Widget;
    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(container);
    return container;
}

// Keeps the widget at its size, where the container would stretch it.
QWidget* Hold(QWidget* widget)
{
    auto* holder = new QWidget;
    auto* layout = new QVBoxLayout(holder);
    layout->addWidget(widget, 0, Qt::AlignLeading | Qt::AlignTop);
    return holder;
}

Home PlainHome(QWidget* window)
{
    auto* layout = new QVBoxLayout(window);
    return {window, [layout](QWidget* widget) { layout->addWidget(widget, 0, Qt::AlignLeading | Qt::AlignTop); }};
}

Home SplitterHome(QWidget* window)
{
    auto* splitter = Fill<QSplitter>(window);
    return {splitter, [splitter](QWidget* widget) { splitter->addWidget(widget); }};
}

Home ScrollAreaHome(QWidget* window)
{
    auto* area = Fill<QScrollArea>(window);
    return {area, [area](QWidget* widget) {
                area->setWidget(widget);
                widget->show();
            }};
}

Home DockHome(QWidget* window)
{
    auto* main = Fill<QMainWindow>(window);
    auto* dock = new QDockWidget(QStringLiteral("Dock"), main);
    main->addDockWidget(Qt::LeftDockWidgetArea, dock);
    return {dock, [dock](QWidget* widget) { dock->setWidget(Hold(widget)); }};
}

Home MdiHome(QWidget* window)
{
    auto* area = Fill<QMdiArea>(window);
    return {area, [area](QWidget* widget) {
                QMdiSubWindow* child = area->addSubWindow(Hold(widget));
                child->showMaximized();
            }};
}

Home StackHome(QWidget* window)
{
    auto* stack = Fill<QStackedWidget>(window);
    stack->addWidget(new QWidget);
    return {stack, [stack](QWidget* widget) { stack->setCurrentIndex(stack->addWidget(Hold(widget))); }};
}

Home TabHome(QWidget* window)
{
    auto* tabs = Fill<QTabWidget>(window);
    tabs->addTab(new QWidget, QStringLiteral("First"));
    return {tabs,
            [tabs](QWidget* widget) { tabs->setCurrentIndex(tabs->addTab(Hold(widget), QStringLiteral("Second"))); }};
}

Home ProxyHome(QWidget* window)
{
    auto* view = Fill<QGraphicsView>(window);
    view->setScene(new QGraphicsScene(view));
    return {nullptr,
            [view](QWidget* widget) {
                widget->setParent(nullptr);
                view->scene()->addWidget(widget);
            },
            [view] {
                view->setFocus();
                for (QGraphicsItem* item : view->items()) {
                    if (!item->parentItem())
                        item->setFocus();
                }
            }};
}

Home MenuHome(QWidget* window)
{
    auto* menu = new QMenu(window);
    auto* action = new QWidgetAction(menu);
    menu->addAction(QStringLiteral("Other"));
    return {menu,
            [menu, action](QWidget* widget) {
                action->setDefaultWidget(Hold(widget));
                menu->addAction(action);
            },
            [menu, window] {
                if (!menu->isVisible())
                    menu->popup(window->mapToGlobal(QPoint(0, 0)));
            },
            menu};
}

Home PanelHome(QWidget* window)
{
    auto* button = new ButtonWithPopUpContainer(window);
    button->setText(QStringLiteral("Panel"));
    return {button, [button](QWidget* widget) { button->AppendWidget(Hold(widget)); },
            [button] {
                if (!button->GetWidget(0)->isVisible())
                    button->ShowPopup();
            },
            window};
}

Home DialogHome(QWidget* window)
{
    auto* dialog = new QDialog(window);
    auto* layout = new QVBoxLayout(dialog);
    return {dialog, [layout](QWidget* widget) { layout->addWidget(widget, 0, Qt::AlignLeading | Qt::AlignTop); },
            [dialog] { dialog->show(); }, dialog};
}

} // namespace

const std::vector<HomeKind>& HomeKinds()
{
    static const std::vector<HomeKind> kinds{
        {"plain window", PlainHome},
        {"splitter", SplitterHome},
        {"scroll area", ScrollAreaHome},
        {"dock", DockHome},
        {"MDI area", MdiHome},
        {"stacked page", StackHome},
        {"tab", TabHome},
        {"graphics proxy", ProxyHome},
        {"menu", MenuHome},
        {"pop-up panel", PanelHome},
        {"dialog", DialogHome},
    };
    return kinds;
}
