#include "WidgetPage.h"
#include "Catalogue.h"
#include "FlowLayout.h"
#include "SignalLog.h"
#include "Texts.h"

#include <UI/Kit/ZFrame.h>

#include <QLabel>
#include <QScrollArea>
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

QWidget* CreateCard(const Entry& entry, const State& state, SignalLog* log)
{
    auto* card = new ZFrame;
    auto* layout = new QVBoxLayout(card);
    card->setProperty("role", QStringLiteral("card"));
    layout->addWidget(CreateText("caption", state.name));
    QWidget* widget = CreateInState(entry, state, card);
    layout->addWidget(widget, 0, Qt::AlignLeading | Qt::AlignTop);
    layout->addStretch();
    log->Watch(widget, entry.className, state.name);
    return card;
}

} // namespace

WidgetPage::WidgetPage(const Entry& entry, QWidget* parent) : QWidget(parent)
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
    auto* log = new SignalLog(this);
    auto* cards = new FlowLayout;
    cards->setSpacing(CARD_SPACING);
    for (const State& state : entry.states)
        cards->addWidget(CreateCard(entry, state, log));
    layout->addLayout(cards);
    layout->addStretch();

    auto* scrollArea = new QScrollArea;
    scrollArea->setWidgetResizable(true);
    scrollArea->setWidget(content);
    content->setAutoFillBackground(false);
    scrollArea->setFrameShape(QFrame::NoFrame);
    auto* parts = new QVBoxLayout(this);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->setSpacing(0);
    parts->addWidget(scrollArea, 1);
    parts->addWidget(log);
}

} // namespace Zelkor::Gallery
