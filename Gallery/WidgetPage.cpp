#include "WidgetPage.h"
#include "Catalogue.h"
#include "FlowLayout.h"
#include "Texts.h"

#include <UI/Kit/ZFrame.h>

#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

namespace Zelkor::Gallery {

namespace {

constexpr int MARGIN = 24;
constexpr int HEADING_SPACING = 4;
constexpr int CARD_SPACING = 16;

QLabel* CreateText(const QString& objectName, const QString& text)
{
    auto* label = new QLabel(text);
    label->setObjectName(objectName);
    AlignAtStart(label);
    return label;
}

QWidget* CreateCard(const Entry& entry, const State& state)
{
    auto* card = new ZFrame;
    auto* layout = new QVBoxLayout(card);
    card->setProperty("role", QStringLiteral("card"));
    layout->addWidget(CreateText("caption", state.name));
    layout->addWidget(CreateInState(entry, state, card), 0, Qt::AlignLeading | Qt::AlignTop);
    layout->addStretch();
    return card;
}

} // namespace

WidgetPage::WidgetPage(const Entry& entry, QWidget* parent) : QScrollArea(parent)
{
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->setSpacing(HEADING_SPACING);
    layout->addWidget(CreateText("groupTitle", entry.group));
    layout->addWidget(CreateText("title", entry.className));
    auto* description = CreateText("description", entry.description);
    description->setWordWrap(true);
    layout->addWidget(description);
    layout->addSpacing(CARD_SPACING);
    auto* cards = new FlowLayout;
    cards->setSpacing(CARD_SPACING);
    for (const State& state : entry.states)
        cards->addWidget(CreateCard(entry, state));
    layout->addLayout(cards);
    layout->addStretch();
    setWidgetResizable(true);
    setWidget(content);
    content->setAutoFillBackground(false);
    setFrameShape(QFrame::NoFrame);
}

} // namespace Zelkor::Gallery
