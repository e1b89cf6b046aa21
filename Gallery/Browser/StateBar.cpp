#include "StateBar.h"
#include "FlowLayout.h"

#include <Gallery/Inspector/ForcedStates.h>

#include <QEvent>
#include <QLabel>
#include <QMargins>
#include <QMetaEnum>
#include <QToolButton>

namespace Zelkor::Gallery {

namespace {

constexpr QMargins MARGINS(24, 8, 24, 8);
constexpr int SPACING = 4;
constexpr int LABEL_MARGIN = 9; ///< centres the label beside the buttons

} // namespace

StateBar::StateBar(QWidget* parent) : QWidget(parent)
{
    setAccessibleName(tr("Forced states"));
    auto* layout = new FlowLayout(this);
    layout->setContentsMargins(MARGINS);
    layout->setSpacing(SPACING);
    auto* label = new QLabel(tr("Force:"));
    label->setObjectName("caption");
    label->setMargin(LABEL_MARGIN);
    layout->addWidget(label);
    const QString texts[] = {tr("Hover"), tr("Pressed"), tr("Focus"), tr("Checked"), tr("Disabled")};
    const auto type = QMetaEnum::fromType<ForcedStates::State>();
    for (int i = 0; i < type.keyCount(); ++i) {
        auto* button = new QToolButton;
        button->setObjectName(QString("force:%1").arg(type.key(i)));
        button->setText(texts[i]);
        button->setToolTip(tr("Show the selected widget in this state until it is switched off"));
        button->setCheckable(true);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this, [this, i](bool on) {
            if (states)
                states->Force(ForcedStates::State(i), on);
            Refresh();
        });
        layout->addWidget(button);
        buttons.append(button);
    }
    Refresh();
}

void StateBar::SetStates(ForcedStates* newStates)
{
    states = newStates;
    Refresh();
}

void StateBar::Refresh()
{
    for (int i = 0; i < buttons.size(); ++i) {
        const auto state = ForcedStates::State(i);
        buttons[i]->setEnabled(states && states->IsApplicable(state));
        buttons[i]->setChecked(states && states->IsForced(state));
    }
}

// Properties of the widget may have changed meanwhile.
bool StateBar::event(QEvent* event)
{
    if (event->type() == QEvent::Enter)
        Refresh();
    return QWidget::event(event);
}

} // namespace Zelkor::Gallery
