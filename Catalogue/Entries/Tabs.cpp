#include <Catalogue/Catalogue.h>
#include <UI/Widgets/CustomTabWidget.h>
#include <UI/Widgets/HorizontalTabBar.h>
#include <UI/Widgets/ResizableStackedWidget.h>

#include <Zelkor/Util/WidgetStyle.h>

#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

using Zelkor::Vx::CustomTabWidget;
using Zelkor::Vx::HorizontalTabBar;

namespace Zelkor::Catalogue {

namespace {

constexpr int SCROLLED_WIDTH = 280;
constexpr QSize PAGES_SIZE(400, 160);

QWidget* CreateTabBar(QWidget* parent)
{
    auto* bar = new HorizontalTabBar(parent);
    bar->addTab(EntryText::tr("Screen"));
    bar->addTab(EntryText::tr("Camera"));
    bar->addTab(EntryText::tr("Microphone"));
    return bar;
}

// The style sheet sets icons and padding for tabs with this role.
void ShowIcons(QTabBar& bar)
{
    Util::ApplyWidgetStyle(&bar, QStringLiteral("sources"), "role");
}

void ShowMany(QTabBar& bar)
{
    for (int i = 1; i < 10; ++i)
        bar.addTab(EntryText::tr("Recording %1").arg(i));
    bar.setCurrentIndex(5);
    bar.setFixedWidth(SCROLLED_WIDTH);
}

void MakeMovable(QTabBar& bar)
{
    bar.setTabsClosable(true);
    bar.setMovable(true);
    QObject::connect(&bar, &QTabBar::tabCloseRequested, &bar, &QTabBar::removeTab);
}

void MakeVertical(QTabBar& bar)
{
    ShowIcons(bar);
    bar.setShape(QTabBar::RoundedWest);
    bar.setExpanding(false);
}

QWidget* CreatePage(const QString& text)
{
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    layout->addWidget(label);
    layout->addStretch();
    return page;
}

QWidget* CreateTabWidget(QWidget* parent)
{
    auto* tabs = new CustomTabWidget(parent);
    tabs->addTab(CreatePage(EntryText::tr("What is on the screen, or a part of it.")), EntryText::tr("Screen"));
    tabs->addTab(CreatePage(EntryText::tr("A camera, in a corner of the picture.")), EntryText::tr("Camera"));
    tabs->addTab(CreatePage(EntryText::tr("The sound of what is said.")), EntryText::tr("Microphone"));
    tabs->setFixedSize(PAGES_SIZE);
    return tabs;
}

// Three pages of different size; the button of each opens the next one.
QWidget* CreateStack(QWidget* parent)
{
    auto* stack = new ResizableStackedWidget(parent);
    const QStringList texts = {EntryText::tr("A small page"), EntryText::tr("A page that is wider than the others"),
                               EntryText::tr("A page\nthat is higher\nthan the others\nand not wide")};
    AddSamplePages(stack, texts);
    return stack;
}

Entry TabBarEntry()
{
    return {
        "HorizontalTabBar",
        EntryText::tr("Tabs"),
        EntryText::tr("A tab bar whose style sheet says where text and icon of a tab are, and how they change with the "
                      "selection."),
        "HorizontalTabBar",
        "tabs",
        CreateTabBar,
        {
            MakeState<QTabBar>(EntryText::tr("Text"), [](QTabBar&) {}),
            MakeState<QTabBar>(EntryText::tr("Icons"), ShowIcons),
            MakeState<QTabBar>(EntryText::tr("One disabled"), [](QTabBar& bar) { bar.setTabEnabled(1, false); }),
            MakeState<QTabBar>(EntryText::tr("Scrolled"), ShowMany),
            MakeState<QTabBar>(EntryText::tr("Closable and movable"), MakeMovable),
            MakeState<QTabBar>(EntryText::tr("Vertical"), MakeVertical),
            DisabledState(),
        },
        nullptr,
        1,
    };
}

Entry TabWidgetEntry()
{
    return {
        "CustomTabWidget",
        EntryText::tr("Tabs"),
        EntryText::tr("A tab widget with that tab bar."),
        "CustomTabWidget",
        "tab-pages",
        CreateTabWidget,
        {
            MakeState<QTabWidget>(EntryText::tr("Text"), [](QTabWidget&) {}),
            MakeState<QTabWidget>(EntryText::tr("Icons"),
                                  [](QTabWidget& tabs) { ShowIcons(*tabs.findChild<QTabBar*>()); }),
            MakeState<QTabWidget>(EntryText::tr("At the side"),
                                  [](QTabWidget& tabs) { tabs.setTabPosition(QTabWidget::West); }),
            DisabledState(),
        },
        nullptr,
        1,
    };
}

Entry StackEntry()
{
    return {
        "ResizableStackedWidget",
        EntryText::tr("Tabs"),
        EntryText::tr("A stack of pages that is fixed to the size of the page it shows."),
        "ResizableStackedWidget",
        "layers",
        CreateStack,
        {
            MakeState<QStackedWidget>(EntryText::tr("Small page"), [](QStackedWidget&) {}),
            MakeState<QStackedWidget>(EntryText::tr("Wide page"),
                                      [](QStackedWidget& stack) { stack.setCurrentIndex(1); }),
            MakeState<QStackedWidget>(EntryText::tr("High page"),
                                      [](QStackedWidget& stack) { stack.setCurrentIndex(2); }),
            DisabledState(),
        },
    };
}

} // namespace

QVector<Entry> TabEntries()
{
    return {InForms<HorizontalTabBar>(TabBarEntry()), InForms<CustomTabWidget>(TabWidgetEntry()),
            InForms<ResizableStackedWidget>(StackEntry())};
}

} // namespace Zelkor::Catalogue
