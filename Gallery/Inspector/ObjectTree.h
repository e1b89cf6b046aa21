#pragma once

#include <QPointer>
#include <QSet>
#include <QTimer>
#include <QTreeWidget>
#include <QVector>

namespace Zelkor::Gallery {

/// Shows class and name of an object and its descendants. Updates when objects are added, removed or renamed, and keeps
/// expansion and selection. GUI thread.
class ObjectTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit ObjectTree(QWidget* parent = nullptr);

    /// Sets the root object, null for none. It may be deleted at any time.
    void SetObject(QObject* object);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Rebuild();
    void Add(QObject* part, QTreeWidgetItem* parent);
    void Forget();

    QPointer<QObject> object;
    QTimer rebuildTimer;
    QVector<QPointer<QObject>> watched;
    QSet<QObject*> folded; ///< addresses only; never dereferenced
    QObject* chosen = nullptr;
};

} // namespace Zelkor::Gallery
