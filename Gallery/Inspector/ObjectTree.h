#pragma once

#include <QPointer>
#include <QSet>
#include <QTimer>
#include <QTreeWidget>
#include <QVector>

namespace Zelkor::Gallery {

/// The object names and classes of an object and of everything inside it. It follows what comes, goes and is renamed,
/// and keeps what is unfolded and chosen. GUI thread.
class ObjectTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit ObjectTree(QWidget* parent = nullptr);

    /// Shows another object, null for none; it may die at any time.
    void SetObject(QObject* object);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Rebuild();
    void Add(QObject* part, QTreeWidgetItem* parent);
    void Forget();

    QPointer<QObject> object;
    QTimer rebuildTimer;
    QVector<QPointer<QObject>> watched;
    QSet<QObject*> folded; ///< by address alone: what has gone is not looked at
    QObject* chosen = nullptr;
};

} // namespace Zelkor::Gallery
