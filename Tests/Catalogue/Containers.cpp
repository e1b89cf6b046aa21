#include <Catalogue/Containers.h>
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

void AddAtOwnSize(QWidget* parent, QWidget* widget)
{
    if (!parent->layout())
        new QVBoxLayout(parent);
    static_cast<QVBoxLayout*>(parent->layout())->addWidget(widget, 0, Qt::AlignLeading | Qt::AlignTop);
}

QWidget* InHolder(QWidget* widget)
{
    auto* holder = new QWidget;
    AddAtOwnSize(holder, widget);
    return holder;
}

Container PlainWindow(QWidget* window)
{
    return {window, [window](QWidget* widget) { AddAtOwnSize(window, widget); }};
}

Container Splitter(QWidget* window)
{
    auto* splitter = Fill<QSplitter>(window);
    return {splitter, [splitter](QWidget* widget) { splitter->addWidget(widget); }};
}

Container ScrollArea(QWidget* window)
{
    auto* area = Fill<QScrollArea>(window);
    return {area, [area](QWidget* widget) {
                area->setWidget(widget);
                widget->show();
            }};
}

Container Dock(QWidget* window)
{
    auto* main = Fill<QMainWindow>(window);
    auto* dock = new QDockWidget(QStringLiteral("Dock"), main);
    main->addDockWidget(Qt::LeftDockWidgetArea, dock);
    return {dock, [dock](QWidget* widget) { dock->setWidget(InHolder(widget)); }};
}

Container MdiArea(QWidget* window)
{
    auto* area = Fill<QMdiArea>(window);
    return {area, [area](QWidget* widget) { area->addSubWindow(InHolder(widget))->showMaximized(); }};
}

Container Stack(QWidget* window)
{
    auto* stack = Fill<QStackedWidget>(window);
    stack->addWidget(new QWidget);
    return {stack, [stack](QWidget* widget) { stack->setCurrentIndex(stack->addWidget(InHolder(widget))); }};
}

Container Tab(QWidget* window)
{
    auto* tabs = Fill<QTabWidget>(window);
    tabs->addTab(new QWidget, QStringLiteral("First"));
    return {tabs, [tabs](QWidget* widget) { tabs->setCurrentIndex(tabs->addTab(InHolder(widget), "Second")); }};
}

Container GraphicsProxy(QWidget* window)
{
    auto* view = Fill<QGraphicsView>(window);
    view->setScene(new QGraphicsScene(view));
    const auto take = [view](QWidget* widget) {
        widget->setParent(nullptr);
        view->scene()->addWidget(widget);
    };
    const auto open = [view] {
        view->setFocus();
        for (QGraphicsItem* item : view->items()) {
            if (!item->parentItem())
                item->setFocus();
        }
    };
    return {nullptr, take, open};
}

Container Menu(QWidget* window)
{
    auto* menu = new QMenu(window);
    auto* action = new QWidgetAction(menu);
    menu->addAction(QStringLiteral("Other"));
    const auto take = [menu, action](QWidget* widget) {
        action->setDefaultWidget(InHolder(widget));
        menu->addAction(action);
    };
    const auto open = [menu, window] {
        if (!menu->isVisible())
            menu->popup(window->mapToGlobal(QPoint(0, 0)));
    };
    return {menu, take, open, menu};
}

Container PopUpPanel(QWidget* window)
{
    auto* button = new ButtonWithPopUpContainer(window);
    button->setText(QStringLiteral("Panel"));
    const auto open = [button] {
        if (!button->GetWidget(0)->isVisible())
            button->ShowPopup();
    };
    return {button, [button](QWidget* widget) { button->AppendWidget(InHolder(widget)); }, open, window};
}

Container Dialog(QWidget* window)
{
    auto* dialog = new QDialog(window);
    return {dialog, [dialog](QWidget* widget) { AddAtOwnSize(dialog, widget); }, [dialog] { dialog->show(); }, dialog};
}

} // namespace

const std::vector<ContainerKind>& ContainerKinds()
{
    static const std::vector<ContainerKind> kinds{
        {"plain window", PlainWindow},
        {"splitter", Splitter},
        {"scroll area", ScrollArea},
        {"dock", Dock},
        {"MDI area", MdiArea},
        {"stacked page", Stack},
        {"tab", Tab},
        {"graphics proxy", GraphicsProxy},
        {"menu", Menu},
        {"pop-up panel", PopUpPanel},
        {"dialog", Dialog},
    };
    return kinds;
}
