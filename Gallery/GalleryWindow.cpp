#include "GalleryWindow.h"
#include "Catalogue.h"
#include "RecorderView.h"
#include "StyleSheet.h"
#include "TrimPage.h"
#include "WidgetPage.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QListWidget>

namespace Zelkor::Gallery {

namespace {

constexpr int SMALLEST_LIST_WIDTH = 224;
constexpr int COMPACT_LIST_WIDTH = 60;
constexpr int COMPACT_BELOW = 640; ///< width of the window below which the list shows icons only
constexpr int LIST_MARGINS = 32;   ///< padding of the list and room for its scroll bar
constexpr double HEADING_FONT_FACTOR = 0.85;
constexpr int ICON_SIZE = 20;
constexpr int PAGE_NAME_ROLE = Qt::UserRole;
constexpr QSize PREFERRED_SIZE(1120, 720);

} // namespace

QString RecorderPageName()
{
    return QStringLiteral("Recorder");
}

QStringList PageNames()
{
    QStringList names{RecorderPageName(), TrimPageName()};
    for (const Entry& entry : Entries())
        names.append(entry.className);
    return names;
}

GalleryWindow::GalleryWindow(RecorderModel* model, const Preferences* preferences, QWidget* parent)
    : QWidget(parent), model(model), preferences(preferences), list(new QListWidget), body(new QHBoxLayout(this))
{
    setWindowTitle(tr("Widgets of Vx Recorder"));
    resize(PREFERRED_SIZE);
    body->setContentsMargins(0, 0, 0, 0);
    body->setSpacing(0);
    body->addWidget(list);
    list->setObjectName("pageList");
    list->setAccessibleName(tr("Pages"));
    list->setIconSize(QSize(ICON_SIZE, ICON_SIZE));
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    FillList();
    list->ensurePolished();
    fullListWidth = qMax(SMALLEST_LIST_WIDTH, list->sizeHintForColumn(0) + LIST_MARGINS);
    list->setFixedWidth(fullListWidth);
    connect(list, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item)
            ShowPage(item->data(PAGE_NAME_ROLE).toString());
    });
}

void GalleryWindow::OpenPage(const QString& name)
{
    for (int row = 0; row < list->count(); ++row) {
        if (list->item(row)->data(PAGE_NAME_ROLE) == name)
            list->setCurrentRow(row);
    }
}

// Headings of groups cannot be chosen, so they have no page name.
void GalleryWindow::FillList()
{
    const auto addPage = [this](const QString& name, const QString& text, const QString& icon) {
        auto* item = new QListWidgetItem(StyleIcon(icon), text, list);
        item->setData(PAGE_NAME_ROLE, name);
        item->setData(Qt::AccessibleTextRole, text);
    };
    addPage(RecorderPageName(), tr("Recorder"), "camera");
    addPage(TrimPageName(), tr("Trimmer"), "trim");
    QFont headingFont = list->font();
    headingFont.setPointSizeF(headingFont.pointSizeF() * HEADING_FONT_FACTOR);
    QString group;
    for (const Entry& entry : Entries()) {
        if (entry.group != group) {
            group = entry.group;
            auto* heading = new QListWidgetItem(group, list);
            heading->setFlags(Qt::NoItemFlags);
            heading->setFont(headingFont);
        }
        addPage(entry.className, entry.className, entry.icon);
    }
}

void GalleryWindow::ShowPage(const QString& name)
{
    delete page;
    if (const Entry* entry = FindEntry(name))
        page = new WidgetPage(*entry);
    else if (name == TrimPageName())
        page = new TrimPage;
    else
        page = new RecorderView(model, preferences);
    body->addWidget(page, 1);
}

void GalleryWindow::SetCompact(bool on)
{
    if (compact == on)
        return;
    compact = on;
    for (int row = 0; row < list->count(); ++row) {
        QListWidgetItem* item = list->item(row);
        const QString text = item->data(Qt::AccessibleTextRole).toString();
        const bool isHeading = item->data(PAGE_NAME_ROLE).isNull();
        item->setHidden(isHeading && compact);
        if (!isHeading) {
            item->setText(compact ? QString() : text);
            item->setToolTip(compact ? text : QString());
        }
    }
    list->setFixedWidth(compact ? COMPACT_LIST_WIDTH : fullListWidth);
}

void GalleryWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    SetCompact(width() < COMPACT_BELOW);
}

void GalleryWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    Q_EMIT Closed();
}

} // namespace Zelkor::Gallery
