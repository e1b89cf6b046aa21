#include "PageList.h"

#include <Catalogue/QtWidgets.h>
#include <UI/Kit/ZStyleSheet.h>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

namespace Zelkor::Gallery {

namespace {

constexpr int SMALLEST_WIDTH = 224;
constexpr int LIST_MARGINS = 32; ///< padding of the list and room for its scroll bar
constexpr int SEARCH_MARGIN = 8;
constexpr double HEADING_FONT_FACTOR = 0.85;
constexpr int ICON_SIZE = 20;
constexpr int PAGE_NAME_ROLE = Qt::UserRole;

// Group headings are not selectable and have no page name.
QString PageOf(const QListWidgetItem* item)
{
    return item ? item->data(PAGE_NAME_ROLE).toString() : QString();
}

} // namespace

QString StartPageName()
{
    return QStringLiteral("Start");
}

QStringList PageNames()
{
    QStringList names{StartPageName()};
    for (const Catalogue::Entry& entry : Catalogue::Entries())
        names.append(entry.className);
    names.append(Catalogue::QtWidgetsEntry().className);
    return names;
}

PageList::PageList(QWidget* parent) : QWidget(parent), search(new QLineEdit), list(new QListWidget)
{
    setObjectName("pages");
    setAttribute(Qt::WA_StyledBackground);
    search->setObjectName("pageSearch");
    search->setClearButtonEnabled(true);
    search->addAction(ZStyleSheet::icon("search"), QLineEdit::LeadingPosition);
    search->installEventFilter(this);
    list->setObjectName("pageList");
    list->installEventFilter(this);
    list->setIconSize(QSize(ICON_SIZE, ICON_SIZE));
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* searchArea = new QVBoxLayout;
    searchArea->setContentsMargins(SEARCH_MARGIN, SEARCH_MARGIN, SEARCH_MARGIN, 0);
    searchArea->addWidget(search);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(searchArea);
    layout->addWidget(list, 1);

    auto* find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    addAction(find);
    connect(find, &QAction::triggered, this, &PageList::Search);
    connect(search, &QLineEdit::textChanged, this, [this] { Fill(compact && !searching); });
    connect(search, &QLineEdit::returnPressed, this, &PageList::ChooseHit);
    connect(list, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (PageOf(item).isEmpty())
            return;
        current = PageOf(item);
        Q_EMIT PageChosen(current);
    });
    Retranslate();
}

void PageList::OpenPage(const QString& name)
{
    if (name == current || !PageNames().contains(name))
        return;
    if (!SelectItem(name)) {
        search->clear();
        SelectItem(name);
    }
}

// Returns false if a search hides the page.
bool PageList::SelectItem(const QString& name)
{
    for (int row = 0; row < list->count(); ++row) {
        if (!name.isEmpty() && PageOf(list->item(row)) == name) {
            list->setCurrentRow(row);
            return true;
        }
    }
    return false;
}

void PageList::FocusList()
{
    list->setFocus();
}

void PageList::Retranslate()
{
    list->setAccessibleName(tr("Pages"));
    search->setAccessibleName(tr("Search"));
    search->setPlaceholderText(tr("Search"));
    search->setToolTip(
        tr("Search the pages (%1)").arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    pageSearch.Reset();
    search->clear();
    Fill(false);
    list->ensurePolished();
    fullWidth = qMax(SMALLEST_WIDTH, list->sizeHintForColumn(0) + LIST_MARGINS);
    Arrange();
}

void PageList::Fill(bool isCompact)
{
    // The current page does not change.
    const QSignalBlocker blocker(list);
    list->clear();
    const QString text = search->text().simplified();
    if (text.isEmpty())
        AddAllPages(isCompact);
    else
        AddHits(text);
    SelectItem(current);
}

void PageList::AddAllPages(bool isCompact)
{
    QString group;
    AddPage(StartPageName(), isCompact);
    for (const Catalogue::Entry& entry :
         Catalogue::Entries() + QVector<Catalogue::Entry>{Catalogue::QtWidgetsEntry()}) {
        if (entry.group != group && !isCompact)
            AddHeading(entry.group);
        group = entry.group;
        AddPage(entry.className, isCompact);
    }
}

void PageList::AddHits(const QString& text)
{
    const QString headings[] = {tr("By name"), tr("By description"), tr("By property, signal or part")};
    int reason = -1;
    for (const PageSearch::Hit& hit : pageSearch.Find(text)) {
        if (hit.reason != reason)
            AddHeading(headings[hit.reason]);
        reason = hit.reason;
        QListWidgetItem* item = AddPage(hit.page, false);
        if (!hit.member.isEmpty())
            item->setText(hit.page + '\n' + hit.member);
    }
    if (list->count() == 0)
        AddHeading(tr("Nothing found"));
}

void PageList::AddHeading(const QString& text)
{
    auto* heading = new QListWidgetItem(text, list);
    QFont font = list->font();
    font.setPointSizeF(font.pointSizeF() * HEADING_FONT_FACTOR);
    heading->setFlags(Qt::NoItemFlags);
    heading->setFont(font);
}

QListWidgetItem* PageList::AddPage(const QString& name, bool isCompact)
{
    const Catalogue::Entry* entry = Catalogue::FindEntry(name);
    const QString text = entry ? name : tr("Start");
    auto* item =
        new QListWidgetItem(ZStyleSheet::icon(entry ? entry->icon : "app"), isCompact ? QString() : text, list);
    item->setData(PAGE_NAME_ROLE, name);
    item->setData(Qt::AccessibleTextRole, text);
    item->setToolTip(isCompact ? text : QString());
    return item;
}

void PageList::Search()
{
    searching = true;
    Arrange();
    search->setFocus(Qt::ShortcutFocusReason);
    search->selectAll();
}

void PageList::EndSearch()
{
    searching = false;
    search->clear();
    Arrange();
}

// Opens the first hit, unless the current page is one.
void PageList::ChooseHit()
{
    for (int row = 0; row < list->count() && !list->currentItem(); ++row) {
        if (!PageOf(list->item(row)).isEmpty())
            list->setCurrentRow(row);
    }
    // Afterwards, because a view without a current item makes one current that it does not select.
    list->setFocus();
}

void PageList::SetCompact(bool on)
{
    if (compact == on)
        return;
    compact = on;
    if (compact)
        EndSearch();
    Arrange();
}

void PageList::Arrange()
{
    const bool isCompact = compact && !searching;
    search->setVisible(!isCompact);
    Fill(isCompact);
    setFixedWidth(isCompact ? list->sizeHintForColumn(0) + LIST_MARGINS : fullWidth);
}

bool PageList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (watched == search ? PressInField(*key) : PressInList(*key))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool PageList::PressInField(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Escape) {
        EndSearch();
        if (compact)
            list->setFocus();
        return true;
    }
    if (event.key() == Qt::Key_Down) {
        ChooseHit();
        return true;
    }
    return false;
}

// Text goes to the field, which replaces the search of item views.
bool PageList::PressInList(QKeyEvent& event)
{
    if (event.key() == Qt::Key_Escape && !search->text().isEmpty()) {
        EndSearch();
        return true;
    }
    const bool isText = !event.text().isEmpty() && event.text()[0].isPrint() && event.key() != Qt::Key_Space;
    const bool isErasing = event.key() == Qt::Key_Backspace && !search->text().isEmpty();
    if ((event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) || (!isText && !isErasing))
        return false;
    if (!search->isVisible())
        Search();
    search->setFocus();
    search->deselect();
    QApplication::sendEvent(search, &event);
    return true;
}

} // namespace Zelkor::Gallery
