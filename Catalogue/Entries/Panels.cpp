#include <Catalogue/Catalogue.h>
#include <UI/Kit/ZStyleSheet.h>
#include <UI/Widgets/ScrollablePanelWithItem.h>
#include <UI/Widgets/SliderWithTickLabels.h>

#include <QButtonGroup>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

using Zelkor::Vx::SliderWithTickLabels;
using Zelkor::Vx::UI::ScrollablePanelWithItem;

namespace Zelkor::Catalogue {

namespace {

constexpr int TOOL_COUNT = 10;
constexpr int TOOL_SPACING = 4;
constexpr int ROOMY_WIDTH = 520;
constexpr int NARROW_WIDTH = 260;
constexpr int SLIDER_WIDTH = 400;
constexpr int NARROW_SLIDER_WIDTH = 200;

/// A row of drawing tools, one of them checked.
void AppendTools(ScrollablePanelWithItem& panel, int count)
{
    static const struct
    {
        const char* icon;
        QString name;
    } tools[TOOL_COUNT] = {
        {"pointer", EntryText::tr("Pointer")},     {"pen", EntryText::tr("Pen")},
        {"marker", EntryText::tr("Marker")},       {"line", EntryText::tr("Line")},
        {"arrow", EntryText::tr("Arrow")},         {"text", EntryText::tr("Text")},
        {"blur", EntryText::tr("Blur")},           {"eraser", EntryText::tr("Eraser")},
        {"rectangle", EntryText::tr("Rectangle")}, {"ellipse", EntryText::tr("Ellipse")},
    };
    auto* group = new QButtonGroup(&panel);
    for (int i = 0; i < count; ++i) {
        auto* item = new QToolButton;
        item->setIcon(ZStyleSheet::icon(tools[i].icon));
        item->setToolTip(tools[i].name);
        item->setAccessibleName(tools[i].name);
        item->setCheckable(true);
        group->addButton(item);
        panel.Append(item);
    }
}

ScrollablePanelWithItem* CreatePanel(int count, QWidget* parent)
{
    auto* panel = new ScrollablePanelWithItem(parent);
    panel->SetItemsSpacing(TOOL_SPACING);
    panel->setAccessibleName(EntryText::tr("Drawing tools"));
    AppendTools(*panel, count);
    return panel;
}

QWidget* CreateTools(QWidget* parent)
{
    auto* panel = CreatePanel(TOOL_COUNT, parent);
    panel->SelectItem(1);
    return panel;
}

State ToolsState(const QString& name, int count, int width)
{
    return MadeState(name, [=](QWidget* parent) {
        auto* panel = CreatePanel(count, parent);
        panel->setFixedWidth(width);
        return panel;
    });
}

/// Scrolls to the middle when the range is known and the selected item is visible.
void ScrollToMiddle(ScrollablePanelWithItem& panel)
{
    panel.setFixedWidth(NARROW_WIDTH);
    auto* bar = panel.findChild<QScrollArea*>()->horizontalScrollBar();
    const auto scroll = [bar] { bar->setValue(bar->maximum() / 2); };
    QObject::connect(bar, &QScrollBar::rangeChanged, bar, scroll, Qt::QueuedConnection);
    QMetaObject::invokeMethod(bar, scroll, Qt::QueuedConnection); // the range may not change
}

Entry ScrollablePanelEntry()
{
    using Panel = ScrollablePanelWithItem;
    return {
        "ScrollablePanelWithItem",
        EntryText::tr("Panels"),
        EntryText::tr("A strip of tool buttons that scrolls sideways when they do not fit."),
        "ScrollablePanelWithItem",
        "strip",
        CreateTools,
        {
            MakeState<Panel>(EntryText::tr("All fit"), [](Panel& panel) { panel.setFixedWidth(ROOMY_WIDTH); }),
            MakeState<Panel>(EntryText::tr("Scrolls"), [](Panel& panel) { panel.setFixedWidth(NARROW_WIDTH); }),
            MakeState<Panel>(EntryText::tr("Scrolled to the middle"), ScrollToMiddle),
            ToolsState(EntryText::tr("Few items"), 3, NARROW_WIDTH),
            ToolsState(EntryText::tr("Empty"), 0, NARROW_WIDTH),
            DisabledState(),
        },
        nullptr,
        1,
    };
}

QWidget* CreateSlider(const QStringList& texts, int current, int width, QWidget* parent)
{
    auto* slider = new SliderWithTickLabels(parent);
    slider->setAccessibleName(EntryText::tr("Quality"));
    slider->setFixedWidth(width);
    slider->AddItems(texts);
    slider->SetCurrentIndex(current);
    return slider;
}

QWidget* CreateEmptySlider(QWidget* parent)
{
    auto* slider = new SliderWithTickLabels(parent);
    slider->setFixedWidth(SLIDER_WIDTH);
    // The focused part has no value to be named after.
    slider->focusProxy()->setAccessibleName(EntryText::tr("Quality"));
    return slider;
}

QWidget* CreateQualities(QWidget* parent)
{
    return CreateSlider({EntryText::tr("Small file"), EntryText::tr("Balanced"), EntryText::tr("Best")}, 1,
                        SLIDER_WIDTH, parent);
}

State SliderState(const QString& name, const QStringList& texts, int current, int width = SLIDER_WIDTH)
{
    return MadeState(name, [=](QWidget* parent) { return CreateSlider(texts, current, width, parent); });
}

Entry SliderWithTickLabelsEntry()
{
    return {
        "SliderWithTickLabels",
        EntryText::tr("Panels"),
        EntryText::tr("A slider for one of a few named values, with the names above its ticks."),
        "SliderWithTickLabels",
        "ticks",
        CreateQualities,
        {
            SliderState(EntryText::tr("Three values"),
                        {EntryText::tr("Small file"), EntryText::tr("Balanced"), EntryText::tr("Best")}, 1),
            SliderState(EntryText::tr("Five values"), {"15", "24", "30", "60", EntryText::tr("As the source")}, 4),
            SliderState(EntryText::tr("Long texts"),
                        {EntryText::tr("As small as possible"), EntryText::tr("Balanced for most recordings"),
                         EntryText::tr("Without any loss")},
                        0),
            SliderState(EntryText::tr("Little room"),
                        {EntryText::tr("Small file"), EntryText::tr("Balanced"), EntryText::tr("Without any loss")}, 2,
                        NARROW_SLIDER_WIDTH),
            SliderState(EntryText::tr("One value"), {EntryText::tr("Balanced")}, 0),
            MadeState(EntryText::tr("No value"), CreateEmptySlider),
            DisabledState(),
        },
    };
}

} // namespace

QVector<Entry> PanelEntries()
{
    return {InForms<ScrollablePanelWithItem>(ScrollablePanelEntry()),
            InForms<SliderWithTickLabels>(SliderWithTickLabelsEntry())};
}

} // namespace Zelkor::Catalogue
