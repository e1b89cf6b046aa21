#pragma once

#include <QPointer>
#include <QSet>
#include <QTimer>
#include <QTreeWidget>
#include <QVector>

namespace Zelkor::Gallery {

/// Shows class, name and size of an object and its descendants. Updates when objects are added, removed, renamed or,
/// while it is visible, resized, and keeps expansion and selection. GUI thread.
class ObjectTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit ObjectTree(QWidget* parent = nullptr);

    /// Sets the root object, null for none. It may be deleted at any time.
    void SetObject(QObject* object);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Emitted when the accessible role, name or value of the current object changes, or another one becomes current.
    void AccessibilityChanged(const QString& role, const QString& name, const QString& value);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Refresh();
    void Rebuild();
    void Add(QObject* part, QTreeWidgetItem* parent);
    void Forget();

    QPointer<QObject> object;
    QTimer rebuildTimer;
    QTimer refreshTimer;
    QVector<QPointer<QObject>> watched; ///< in the order of the items
    QStringList accessibility;          ///< role, name and value as emitted last
    QSet<QObject*> folded;              ///< addresses only; never dereferenced
    QObject* chosen = nullptr;
};

} // namespace Zelkor::Gallery
