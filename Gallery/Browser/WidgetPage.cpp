#include "WidgetPage.h"
#include "CardGrid.h"
#include "CodePane.h"
#include "StateBar.h"
#include "StateCard.h"

#include <Catalogue/Catalogue.h>
#include <Examples/Support/WidgetTexts.h>
#include <Gallery/Inspector/ForcedStates.h>
#include <Gallery/Inspector/Inspector.h>
#include <Gallery/Inspector/PropertyPanel.h>
#include <Gallery/Inspector/SignalLog.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>

namespace Zelkor::Gallery {

using namespace Examples;

namespace {

constexpr int MARGIN = 24;
constexpr int HEADING_SPACING = 4;
constexpr int CARD_SPACING = 12;
constexpr int NARROW_BELOW = 680; ///< page width below which the inspector is below the cards
constexpr int INSPECTOR_WIDTH = 352;
constexpr int LARGEST_SHARE_OF_CODE = 3; ///< of the height: a third

QLabel* CreateText(const QString& objectName, const QString& text)
{
    auto* label = new QLabel(text);
    label->setObjectName(objectName);
    AlignAtStart(label);
    return label;
}

// Returns the defaults of the constructor, without style sheet and state.
QVariantMap DefaultsOf(const Catalogue::Entry& entry)
{
    QWidget parent;
    return PropertyValues(*CreateBare(entry, &parent));
}

} // namespace

WidgetPage::WidgetPage(const Catalogue::Entry& entry, QWidget* parent)
    : QWidget(parent), className(entry.className), defaults(DefaultsOf(entry)), splitter(new QSplitter),
      inspector(new Inspector), stateBar(new StateBar), codePane(new CodePane)
{
    // Allows the page to become narrow, so that it can rearrange itself.
    setMinimumWidth(1);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(CreateMain(entry));
    splitter->addWidget(inspector);
    splitter->setStretchFactor(0, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter);

    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { SelectCardAround(now); });
    // A press on a widget without a focus policy selects its card as well.
    qApp->installEventFilter(this);
    SelectState(0);
    Arrange();
}

WidgetPage::~WidgetPage()
{
    // The focus changes while ~QWidget() deletes the children.
    disconnect(qApp, nullptr, this, nullptr);
}

// Returns the cards with the tools and the code below them.
QWidget* WidgetPage::CreateMain(const Catalogue::Entry& entry)
{
    auto* scrollArea = new QScrollArea;
    QWidget* content = CreateContent(entry);
    scrollArea->setObjectName("states");
    scrollArea->setWidgetResizable(true);
    scrollArea->setWidget(content);
    content->setAutoFillBackground(false);
    scrollArea->setFrameShape(QFrame::NoFrame);
    // The cards take the focus; keys that they ignore scroll.
    scrollArea->setFocusPolicy(Qt::NoFocus);
    auto* main = new QWidget;
    auto* layout = new QVBoxLayout(main);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(scrollArea, 1);
    layout->addWidget(stateBar);
    mainAndCode = new QSplitter(Qt::Vertical);
    mainAndCode->addWidget(main);
    mainAndCode->addWidget(codePane);
    mainAndCode->setCollapsible(0, false);
    connect(mainAndCode, &QSplitter::splitterMoved, this, [this] { isSplitByUser = true; });
    return mainAndCode;
}

QWidget* WidgetPage::CreateContent(const Catalogue::Entry& entry)
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
    auto* grid = new CardGrid;
    grid->setSpacing(CARD_SPACING);
    for (const Catalogue::State& state : entry.states) {
        auto* card = new StateCard(entry, state, defaults);
        inspector->Signals()->Watch(card->Widget(), className, state.name);
        card->setAccessibleDescription(tr("Return leads to the tools of this state"));
        grid->addWidget(card);
        cards.append(card);
        auto* object = qobject_cast<QWidget*>(FindObject(card->Widget(), className));
        forcedStates.append(new ForcedStates(object ? object : card->Widget(), card));
    }
    layout->addLayout(grid);
    layout->addStretch();
    return content;
}

void WidgetPage::SelectState(int index)
{
    if (index < 0 || index >= cards.size() || index == selected)
        return;
    selected = index;
    for (int i = 0; i < cards.size(); ++i)
        cards[i]->SetSelected(i == selected);
    stateBar->SetStates(forcedStates[selected]);
    inspector->Inspect(cards[selected]->Widget(), className, defaults);
    codePane->ShowState(*Catalogue::FindEntry(className), selected);
}

void WidgetPage::ShowState(int index)
{
    SelectState(index);
    isPinned = true;
    ScrollToSelected();
}

// Waits for the layout.
void WidgetPage::ScrollToSelected()
{
    QTimer::singleShot(0, this, [this] { findChild<QScrollArea*>("states")->ensureWidgetVisible(cards[selected]); });
}

void WidgetPage::SelectCardAround(QWidget* widget)
{
    for (int i = 0; i < cards.size(); ++i) {
        if (widget && (cards[i] == widget || cards[i]->isAncestorOf(widget)))
            SelectState(i);
    }
}

// Tab selects each card on its way to the tools.
void WidgetPage::FocusTools()
{
    for (const QWidget* tools : {static_cast<QWidget*>(stateBar), static_cast<QWidget*>(codePane)}) {
        for (auto* button : tools->findChildren<QAbstractButton*>()) {
            if (button->isVisibleTo(this) && button->isEnabled() && (button->focusPolicy() & Qt::TabFocus))
                return button->setFocus(Qt::TabFocusReason);
        }
    }
}

void WidgetPage::SetWidgetsEnabled(bool on)
{
    for (StateCard* card : cards)
        card->SetWidgetEnabled(on);
    stateBar->Refresh();
}

void WidgetPage::SetInspectorVisible(bool on)
{
    if (IsInspectorVisible() == on)
        return;
    inspector->setVisible(on);
    Q_EMIT InspectorVisibilityChanged(on);
}

bool WidgetPage::IsInspectorVisible() const
{
    return !inspector->isHidden();
}

// Leaves most of the height to the cards, until the user moves the splitter.
void WidgetPage::ArrangeCode()
{
    const int whole = mainAndCode->height();
    const int code = qMin(codePane->sizeHint().height(), whole / LARGEST_SHARE_OF_CODE);
    if (!isSplitByUser)
        mainAndCode->setSizes({whole - code, code});
}

void WidgetPage::Arrange()
{
    isNarrow = width() < NARROW_BELOW;
    splitter->setOrientation(isNarrow ? Qt::Vertical : Qt::Horizontal);
    const int whole = isNarrow ? height() : width();
    const int share = isNarrow ? whole / 2 : INSPECTOR_WIDTH;
    splitter->setSizes({whole - share, share});
    // Widgets without code of ours take the width.
    SetInspectorVisible(!isNarrow && !codePane->isHidden());
}

void WidgetPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (isNarrow != (width() < NARROW_BELOW))
        Arrange();
    if (isPinned)
        ScrollToSelected();
}

bool WidgetPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType()) {
        isPinned = false;
        SelectCardAround(static_cast<QWidget*>(watched));
    }
    if (event->type() == QEvent::KeyPress && watched == cards.value(selected) &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return)
        FocusTools();
    if (event->type() == QEvent::Resize && watched == mainAndCode)
        ArrangeCode();
    return QWidget::eventFilter(watched, event);
}

} // namespace Zelkor::Gallery
