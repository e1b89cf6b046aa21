#include "StateCard.h"
#include "ResizeFrame.h"

#include <Catalogue/Catalogue.h>
#include <Examples/Support/WidgetTexts.h>

#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

namespace Zelkor::Gallery {

using namespace Examples;

namespace {

// Returns the directions in which the state, and not the class of the widget, fixes the size.
Qt::Orientations FixedByState(const QWidget& widget, const QVariantMap& defaults)
{
    const QSize smallest = defaults.value("minimumSize").toSize();
    const QSize largest = defaults.value("maximumSize").toSize();
    const bool isWide = smallest.width() < largest.width() || !largest.isValid();
    const bool isHigh = smallest.height() < largest.height() || !largest.isValid();
    Qt::Orientations directions;
    directions.setFlag(Qt::Horizontal, isWide && widget.minimumWidth() == widget.maximumWidth());
    directions.setFlag(Qt::Vertical, isHigh && widget.minimumHeight() == widget.maximumHeight());
    return directions;
}

} // namespace

StateCard::StateCard(const Catalogue::Entry& entry, const Catalogue::State& state, const QVariantMap& defaults,
                     QWidget* parent)
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
    auto* item = new SizedItem(widget, FixedByState(*widget, defaults));
    item->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    inner->addItem(item);
    inner->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(holder, 1);
    frame = new ResizeFrame(item, this);
    frame->hide();
}

void StateCard::SetSelected(bool on)
{
    if (property("selected").toBool() == on)
        return;
    setProperty("selected", on);
    style()->unpolish(this);
    style()->polish(this);
    if (frame)
        frame->setVisible(on);
}

} // namespace Zelkor::Gallery
