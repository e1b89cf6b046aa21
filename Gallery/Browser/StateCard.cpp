#include "StateCard.h"

#include <Catalogue/Catalogue.h>
#include <Examples/Support/WidgetTexts.h>

#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>

namespace Zelkor::Gallery {

using namespace Examples;

StateCard::StateCard(const Catalogue::Entry& entry, const Catalogue::State& state, QWidget* parent)
    : ZFrame(parent), holder(new QWidget)
{
    setProperty("role", QStringLiteral("card"));
    setProperty("selected", false);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(state.name);
    auto* caption = new QLabel(state.name);
    caption->setObjectName("caption");
    AlignAtStart(caption);
    widget = CreateInState(entry, state, holder);
    auto* inner = new QVBoxLayout(holder);
    inner->setContentsMargins(0, 0, 0, 0);
    inner->addWidget(widget, 0, Qt::AlignLeading | Qt::AlignTop);
    inner->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(holder, 1);
}

void StateCard::SetSelected(bool on)
{
    if (property("selected").toBool() == on)
        return;
    setProperty("selected", on);
    style()->unpolish(this);
    style()->polish(this);
}

} // namespace Zelkor::Gallery
