#include "ObjectTree.h"

#include <QAccessible>
#include <QChildEvent>
#include <QHeaderView>
#include <QMetaEnum>
#include <QScrollBar>
#include <QTreeWidgetItemIterator>

namespace Zelkor::Gallery {

namespace {

constexpr int OBJECT_ROLE = Qt::UserRole;
constexpr int INDENTATION = 12;
constexpr int REFRESH_MS = 500;

QObject* ObjectOf(const QTreeWidgetItem* item)
{
    return reinterpret_cast<QObject*>(item->data(0, OBJECT_ROLE).value<quintptr>());
}

QString SizeText(const QObject* object)
{
    const auto* widget = qobject_cast<const QWidget*>(object);
    return widget ? QString::fromUtf8("%1 × %2").arg(widget->width()).arg(widget->height()) : QString();
}

// Returns role, name and value of an object, empty for one without accessibility.
QStringList AccessibilityOf(QObject* object)
{
    QAccessibleInterface* part = object ? QAccessible::queryAccessibleInterface(object) : nullptr;
    if (!part)
        return {QString(), QString(), QString()};
    const auto roles = QMetaEnum::fromType<QAccessible::Role>();
    QString value = part->text(QAccessible::Value);
    if (auto* number = part->valueInterface(); number && value.isEmpty())
        value = number->currentValue().toString();
    return {roles.valueToKey(part->role()), part->text(QAccessible::Name), value};
}

} // namespace

ObjectTree::ObjectTree(QWidget* parent) : QTreeWidget(parent)
{
    setObjectName("objectTree");
    setAccessibleName(tr("Objects"));
    setHeaderLabels({tr("Class and object name"), tr("Size")});
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    header()->setSectionsMovable(false);
    setUniformRowHeights(true);
    setIndentation(INDENTATION);
    setAllColumnsShowFocus(true);
    // Combines the many changes of a widget that rearranges itself.
    rebuildTimer.setSingleShot(true);
    connect(&rebuildTimer, &QTimer::timeout, this, &ObjectTree::Rebuild);
    connect(this, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* item) { folded.insert(ObjectOf(item)); });
    connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { folded.remove(ObjectOf(item)); });
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item)
            chosen = ObjectOf(item);
        Refresh();
    });
    // Accessible values have no signal that works without assistive technology.
    refreshTimer.setInterval(REFRESH_MS);
    connect(&refreshTimer, &QTimer::timeout, this, &ObjectTree::Refresh);
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
    QSignalBlocker blocker(this);
    clear();
    if (object) {
        Add(object, nullptr);
        if (!currentItem())
            setCurrentItem(topLevelItem(0));
        verticalScrollBar()->setValue(position);
    }
    blocker.unblock();
    Refresh();
}

void ObjectTree::Refresh()
{
    QTreeWidgetItemIterator item(this);
    QObject* current = nullptr;
    for (const QPointer<QObject>& part : watched) {
        if (*item == currentItem())
            current = part;
        (*item++)->setText(1, SizeText(part));
    }
    const QStringList now = AccessibilityOf(current);
    if (now == accessibility)
        return;
    accessibility = now;
    Q_EMIT AccessibilityChanged(now[0], now[1], now[2]);
}

void ObjectTree::showEvent(QShowEvent* event)
{
    QTreeWidget::showEvent(event);
    Refresh();
    refreshTimer.start();
}

void ObjectTree::hideEvent(QHideEvent* event)
{
    QTreeWidget::hideEvent(event);
    refreshTimer.stop();
}

void ObjectTree::Add(QObject* part, QTreeWidgetItem* parent)
{
    auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(this);
    const QString className = part->metaObject()->className();
    const QString name = part->objectName().isEmpty() ? QString() : " #" + part->objectName();
    item->setText(0, className.section("::", -1) + name);
    item->setToolTip(0, className + name);
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
