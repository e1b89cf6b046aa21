#include "PageList.h"

#include <Catalogue/QtWidgets.h>
#include <UI/Kit/ZStyleSheet.h>

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

namespace Zelkor::Gallery {

namespace {

constexpr int SMALLEST_WIDTH = 224;
constexpr int COMPACT_WIDTH = 60;
constexpr int LIST_MARGINS = 32; ///< padding of the list and room for its scroll bar
constexpr int SEARCH_MARGIN = 8;
constexpr double HEADING_FONT_FACTOR = 0.85;
constexpr int ICON_SIZE = 20;
constexpr int PAGE_NAME_ROLE = Qt::UserRole;
constexpr int GROUP_ROLE = Qt::UserRole + 1;

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
    connect(search, &QLineEdit::textChanged, this, &PageList::Filter);
    connect(search, &QLineEdit::returnPressed, this, &PageList::ChooseFirstHit);
    connect(list, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (!PageOf(item).isEmpty())
            Q_EMIT PageChosen(PageOf(item));
    });
    Retranslate();
}

void PageList::OpenPage(const QString& name)
{
    for (int row = 0; row < list->count(); ++row) {
        if (!name.isEmpty() && PageOf(list->item(row)) == name)
            list->setCurrentRow(row);
    }
}

void PageList::FocusList()
{
    list->setFocus();
}

QString PageList::CurrentPage() const
{
    return PageOf(list->currentItem());
}

void PageList::Retranslate()
{
    list->setAccessibleName(tr("Pages"));
    search->setAccessibleName(tr("Search"));
    search->setPlaceholderText(tr("Search"));
    search->setToolTip(
        tr("Search the pages (%1)").arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    const QString page = CurrentPage();
    {
        // The current page does not change.
        const QSignalBlocker blocker(list);
        list->clear();
        Fill();
        OpenPage(page);
    }
    list->ensurePolished();
    fullWidth = qMax(SMALLEST_WIDTH, list->sizeHintForColumn(0) + LIST_MARGINS);
    Arrange();
}

void PageList::Fill()
{
    QString group;
    const auto addPage = [&](const QString& name, const QString& text, const QString& icon) {
        auto* item = new QListWidgetItem(ZStyleSheet::icon(icon), text, list);
        item->setData(PAGE_NAME_ROLE, name);
        item->setData(GROUP_ROLE, group);
        item->setData(Qt::AccessibleTextRole, text);
    };
    addPage(StartPageName(), tr("Start"), "app");
    QFont headingFont = list->font();
    headingFont.setPointSizeF(headingFont.pointSizeF() * HEADING_FONT_FACTOR);
    for (const Catalogue::Entry& entry : Catalogue::Entries() + QVector{Catalogue::QtWidgetsEntry()}) {
        if (entry.group != group) {
            group = entry.group;
            auto* heading = new QListWidgetItem(group, list);
            heading->setFlags(Qt::NoItemFlags);
            heading->setFont(headingFont);
        }
        addPage(entry.className, entry.className, entry.icon);
    }
}

void PageList::Filter()
{
    const QString text = search->text().trimmed();
    const bool isCompact = compact && !searching;
    QListWidgetItem* heading = nullptr;
    for (int row = 0; row < list->count(); ++row) {
        QListWidgetItem* item = list->item(row);
        if (PageOf(item).isEmpty()) {
            heading = item;
            heading->setHidden(true);
            continue;
        }
        const QString name = item->data(Qt::AccessibleTextRole).toString();
        const bool isHit = name.contains(text, Qt::CaseInsensitive) ||
                           item->data(GROUP_ROLE).toString().contains(text, Qt::CaseInsensitive);
        item->setHidden(!isHit);
        if (heading && isHit)
            heading->setHidden(isCompact);
    }
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

void PageList::ChooseFirstHit()
{
    for (int row = 0; row < list->count(); ++row) {
        if (!list->item(row)->isHidden() && !PageOf(list->item(row)).isEmpty()) {
            list->setCurrentRow(row);
            list->setFocus();
            return;
        }
    }
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
    for (int row = 0; row < list->count(); ++row) {
        QListWidgetItem* item = list->item(row);
        if (PageOf(item).isEmpty())
            continue;
        const QString text = item->data(Qt::AccessibleTextRole).toString();
        item->setText(isCompact ? QString() : text);
        item->setToolTip(isCompact ? text : QString());
    }
    setFixedWidth(isCompact ? COMPACT_WIDTH : fullWidth);
    Filter();
}

bool PageList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == search && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
            EndSearch();
            if (compact)
                list->setFocus();
            return true;
        case Qt::Key_Down:
            list->setFocus();
            return true;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace Zelkor::Gallery
