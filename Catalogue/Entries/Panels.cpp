#include "Catalogue.h"
#include "StyleSheet.h"

#include <UI/Widgets/ScrollablePanelWithItem.h>
#include <UI/Widgets/SliderWithTickLabels.h>

#include <QButtonGroup>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

using Zelkor::Vx::SliderWithTickLabels;
using Zelkor::Vx::UI::ScrollablePanelWithItem;

namespace Zelkor::Gallery {

namespace {

constexpr int TOOL_COUNT = 10;
constexpr int TOOL_SPACING = 4;
constexpr int ROOMY_WIDTH = 520;
constexpr int NARROW_WIDTH = 260;
constexpr int SLIDER_WIDTH = 400;
constexpr int NARROW_SLIDER_WIDTH = 200;

/// A strip of drawing tools, of which one is chosen.
void AppendTools(ScrollablePanelWithItem& panel, int count)
{
    static const struct
    {
        const char* icon;
        QString name;
    } tools[TOOL_COUNT] = {
        {"pointer", Catalogue::tr("Pointer")},     {"pen", Catalogue::tr("Pen")},
        {"marker", Catalogue::tr("Marker")},       {"line", Catalogue::tr("Line")},
        {"arrow", Catalogue::tr("Arrow")},         {"text", Catalogue::tr("Text")},
        {"blur", Catalogue::tr("Blur")},           {"eraser", Catalogue::tr("Eraser")},
        {"rectangle", Catalogue::tr("Rectangle")}, {"ellipse", Catalogue::tr("Ellipse")},
    };
    auto* group = new QButtonGroup(&panel);
    for (int i = 0; i < count; ++i) {
        auto* item = new QToolButton;
        item->setIcon(StyleIcon(tools[i].icon));
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
    panel->setAccessibleName(Catalogue::tr("Drawing tools"));
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

/// Scrolls to the middle once the range is known and the panel has shown the selected item.
void ScrollToMiddle(ScrollablePanelWithItem& panel)
{
    panel.setFixedWidth(NARROW_WIDTH);
    auto* bar = panel.findChild<QScrollArea*>()->horizontalScrollBar();
    const auto scroll = [bar] { bar->setValue(bar->maximum() / 2); };
    QObject::connect(bar, &QScrollBar::rangeChanged, bar, scroll, Qt::QueuedConnection);
    QMetaObject::invokeMethod(bar, scroll, Qt::QueuedConnection); // the range may be the same already
}

Entry ScrollablePanelEntry()
{
    using Panel = ScrollablePanelWithItem;
    return {
        "ScrollablePanelWithItem",
        Catalogue::tr("Panels"),
        Catalogue::tr("A strip of tool buttons that scrolls sideways when they do not fit."),
        "ScrollablePanelWithItem",
        "strip",
        CreateTools,
        {
            MakeState<Panel>(Catalogue::tr("All fit"), [](Panel& panel) { panel.setFixedWidth(ROOMY_WIDTH); }),
            MakeState<Panel>(Catalogue::tr("Scrolls"), [](Panel& panel) { panel.setFixedWidth(NARROW_WIDTH); }),
            MakeState<Panel>(Catalogue::tr("Scrolled to the middle"), ScrollToMiddle),
            ToolsState(Catalogue::tr("Few items"), 3, NARROW_WIDTH),
            ToolsState(Catalogue::tr("Empty"), 0, NARROW_WIDTH),
            DisabledState(),
        },
        nullptr,
        1,
    };
}

QWidget* CreateSlider(const QStringList& texts, int current, int width, QWidget* parent)
{
    auto* slider = new SliderWithTickLabels(parent);
    slider->setAccessibleName(Catalogue::tr("Quality"));
    // Without a value, there is nothing that the part with the keyboard could be named after.
    if (texts.isEmpty())
        slider->focusProxy()->setAccessibleName(slider->accessibleName());
    slider->setFixedWidth(width);
    slider->AddItems(texts);
    if (!texts.isEmpty())
        slider->SetCurrentIndex(current);
    return slider;
}

QWidget* CreateQualities(QWidget* parent)
{
    return CreateSlider({Catalogue::tr("Small file"), Catalogue::tr("Balanced"), Catalogue::tr("Best")}, 1,
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
        Catalogue::tr("Panels"),
        Catalogue::tr("A slider for one of a few named values, with the names above its ticks."),
        "SliderWithTickLabels",
        "ticks",
        CreateQualities,
        {
            SliderState(Catalogue::tr("Three values"),
                        {Catalogue::tr("Small file"), Catalogue::tr("Balanced"), Catalogue::tr("Best")}, 1),
            SliderState(Catalogue::tr("Five values"), {"15", "24", "30", "60", Catalogue::tr("As the source")}, 4),
            SliderState(Catalogue::tr("Long texts"),
                        {Catalogue::tr("As small as possible"), Catalogue::tr("Balanced for most recordings"),
                         Catalogue::tr("Without any loss")},
                        0),
            SliderState(Catalogue::tr("Little room"),
                        {Catalogue::tr("Small file"), Catalogue::tr("Balanced"), Catalogue::tr("Without any loss")}, 2,
                        NARROW_SLIDER_WIDTH),
            SliderState(Catalogue::tr("One value"), {Catalogue::tr("Balanced")}, 0),
            SliderState(Catalogue::tr("No value"), {}, 0),
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

} // namespace Zelkor::Gallery
