#include "ToolStrip.h"

#include <UI/Kit/ZStyleSheet.h>
#include <UI/Widgets/ScrollablePanelWithItem.h>

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>

namespace Zelkor::Recorder {

namespace {

struct Tool
{
    const char* icon;
    const char* name;
};

constexpr Tool TOOLS[] = {
    {"pointer", QT_TRANSLATE_NOOP("Zelkor::Recorder::ToolStrip", "Pointer")},
    {"pen", QT_TRANSLATE_NOOP("Zelkor::Recorder::ToolStrip", "Pen")},
    {"marker", QT_TRANSLATE_NOOP("Zelkor::Recorder::ToolStrip", "Marker")},
    {"line", QT_TRANSLATE_NOOP("Zelkor::Recorder::ToolStrip", "Line")},
    {"arrow", QT_TRANSLATE_NOOP("Zelkor::Recorder::ToolStrip", "Arrow")},
    {"rectangle", QT_TRANSLATE_NOOP("Zelkor::Recorder::ToolStrip", "Rectangle")},
    {"ellipse", QT_TRANSLATE_NOOP("Zelkor::Recorder::ToolStrip", "Ellipse")},
    {"text", QT_TRANSLATE_NOOP("Zelkor::Recorder::ToolStrip", "Text")},
    {"number", QT_TRANSLATE_NOOP("Zelkor::Recorder::ToolStrip", "Numbered step")},
    {"spotlight", QT_TRANSLATE_NOOP("Zelkor::Recorder::ToolStrip", "Spotlight")},
    {"blur", QT_TRANSLATE_NOOP("Zelkor::Recorder::ToolStrip", "Blur")},
    {"zoom", QT_TRANSLATE_NOOP("Zelkor::Recorder::ToolStrip", "Magnifier")},
    {"eraser", QT_TRANSLATE_NOOP("Zelkor::Recorder::ToolStrip", "Eraser")},
};

constexpr int SPACING = 4;

} // namespace

ToolStrip::ToolStrip(QWidget* parent) : QWidget(parent), panel(new Vx::UI::ScrollablePanelWithItem(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(panel);
    panel->SetItemsSpacing(SPACING);
    auto* group = new QButtonGroup(this);
    for (const Tool& tool : TOOLS) {
        auto* button = new QToolButton;
        button->setFocusPolicy(Qt::StrongFocus);
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setIcon(ZStyleSheet::icon(tool.icon));
        group->addButton(button);
        tools.append(button);
        panel->Append(button);
    }
    panel->SelectItem(0);
    Retranslate();
}

void ToolStrip::Retranslate()
{
    for (int i = 0; i < tools.size(); ++i) {
        tools[i]->setToolTip(tr(TOOLS[i].name));
        tools[i]->setAccessibleName(tr(TOOLS[i].name));
    }
}

void ToolStrip::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
}

} // namespace Zelkor::Recorder
