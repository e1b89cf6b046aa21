#include "SpeedTable.h"

#include <UI/Widgets/ScrollablePanelWithItem.h>
#include <UI/Widgets/SliderWithTickLabels.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QToolButton>

using namespace Zelkor;

namespace SpeedTable {

namespace {

constexpr int LABEL_COUNT = 500;
constexpr int BUTTON_COUNT = 500;

// Processes pending layout and paint events.
void FinishEvents()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

QStringList Texts(int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(QStringLiteral("Value %1").arg(i));
    return texts;
}

// From the constructor until the layout of the labels, filled while visible.
void FillSlider(const QStringList& texts)
{
    Vx::SliderWithTickLabels slider(nullptr);
    slider.setStyleSheet(QStringLiteral("ZLabel[Position=\"First\"], ZLabel[Position=\"Last\"] { color: gray }"));
    slider.setFixedSize(800, 60);
    slider.show();
    FinishEvents();
    slider.AddItems(texts);
    FinishEvents();
}

Rounds AddLabels()
{
    const QStringList texts = Texts(LABEL_COUNT);
    const QStringList twice = Texts(2 * LABEL_COUNT);
    return Interleave([&] { FillSlider(twice); }, [&] { FillSlider(texts); }, 11, 1);
}

// Both sides show a window, add buttons to a frame of their width, and lay it out.
template<class Append>
void AppendButtons(QWidget& window, Append append)
{
    window.setFixedSize(400, 60);
    window.show();
    FinishEvents();
    for (int i = 0; i < BUTTON_COUNT; ++i) {
        auto* button = new QToolButton;
        button->setText(QStringLiteral("Tool"));
        append(button);
    }
    FinishEvents();
}

void AppendToPanel()
{
    Vx::UI::ScrollablePanelWithItem panel(nullptr);
    AppendButtons(panel, [&](QToolButton* button) { panel.Append(button); });
}

void AppendToLayout()
{
    QWidget window;
    auto* frame = new QFrame(&window);
    auto* layout = new QHBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    AppendButtons(window, [&](QToolButton* button) { layout->addWidget(button); });
}

} // namespace

std::vector<Row> PanelRows()
{
    return {
        {"tick-labels", "SliderWithTickLabels::AddItems, 1000 items", "the same with 500 items", 2.2, AddLabels},
        {"panel-append", "scrollable panel, 500 buttons appended and laid out", "the same buttons in a QHBoxLayout",
         1.1, [] { return Interleave(AppendToPanel, AppendToLayout, 31, 2); }},
    };
}

} // namespace SpeedTable
