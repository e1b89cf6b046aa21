#include "ObjectTree.h"

#include <QChildEvent>
#include <QHeaderView>
#include <QScrollBar>

namespace Zelkor::Gallery {

namespace {

constexpr int OBJECT_ROLE = Qt::UserRole;

QObject* ObjectOf(const QTreeWidgetItem* item)
{
    return reinterpret_cast<QObject*>(item->data(0, OBJECT_ROLE).value<quintptr>());
}

} // namespace

ObjectTree::ObjectTree(QWidget* parent) : QTreeWidget(parent)
{
    setObjectName("objectTree");
    setAccessibleName(tr("Objects"));
    setHeaderLabels({tr("Class"), tr("Object name")});
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    header()->setSectionsMovable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    // Combines the many changes of a widget that rearranges itself.
    rebuildTimer.setSingleShot(true);
    connect(&rebuildTimer, &QTimer::timeout, this, &ObjectTree::Rebuild);
    connect(this, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* item) { folded.insert(ObjectOf(item)); });
    connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { folded.remove(ObjectOf(item)); });
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item)
            chosen = ObjectOf(item);
    });
}

void ObjectTree::SetObject(QObject* newObject)
{
    object = newObject;
    folded.clear();
    chosen = nullptr;
    Rebuild();
}

bool ObjectTree::eventFilter(QObject* part, QEvent* event)
{
    // During its constructor an object does not have its final class, so the rebuild is delayed.
    if (event->type() == QEvent::ChildAdded || event->type() == QEvent::ChildRemoved)
        rebuildTimer.start(0);
    return QTreeWidget::eventFilter(part, event);
}

void ObjectTree::Forget()
{
    for (const QPointer<QObject>& part : watched) {
        if (!part)
            continue;
        part->removeEventFilter(this);
        disconnect(part, nullptr, this, nullptr);
    }
    watched.clear();
}

void ObjectTree::Rebuild()
{
    rebuildTimer.stop();
    Forget();
    const int position = verticalScrollBar()->value();
    const QSignalBlocker blocker(this);
    clear();
    if (!object)
        return;
    Add(object, nullptr);
    verticalScrollBar()->setValue(position);
}

void ObjectTree::Add(QObject* part, QTreeWidgetItem* parent)
{
    auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(this);
    item->setText(0, part->metaObject()->className());
    item->setText(1, part->objectName());
    item->setToolTip(0, item->text(0));
    item->setToolTip(1, item->text(1));
    item->setData(0, OBJECT_ROLE, QVariant::fromValue(reinterpret_cast<quintptr>(part)));
    watched.append(part);
    part->installEventFilter(this);
    const auto rebuildLater = [this] { rebuildTimer.start(0); };
    connect(part, &QObject::objectNameChanged, this, rebuildLater);
    connect(part, &QObject::destroyed, this, rebuildLater);
    for (QObject* child : part->children())
        Add(child, item);
    item->setExpanded(!folded.contains(part));
    if (part == chosen)
        setCurrentItem(item);
}

} // namespace Zelkor::Gallery
