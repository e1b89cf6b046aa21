#pragma once

#include <QAccessible>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <functional>

/// Makes Qt send accessibility events as with a running screen reader. Returns false without Qt's private headers.
bool EnableAccessibility();

/// Calls `visit` for an interface and its visible descendants. `owner` is the nearest object, `path` the child indices
/// from there to an interface without an object, such as a tab of a tab bar.
void VisitAccessible(QAccessibleInterface* root,
                     const std::function<void(QAccessibleInterface&, QObject* owner, const QString& path)>& visit);

/// What assistive technology reads of a widget and its parts at one time.
class AccessibleSnapshot
{
public:
    explicit AccessibleSnapshot(QWidget* widget);

    struct Part
    {
        QString name;
        QString description;
        QString value;
        QString text; ///< of an editable text
        QAccessible::State state;
    };

    QMap<QPair<QObject*, QString>, Part> parts;
};

/// Records the accessibility events that are sent while it lives.
class AccessibleEventLog
{
public:
    AccessibleEventLog();
    ~AccessibleEventLog();

    void Clear() { events.clear(); }

    /// Describes each difference between two snapshots without an event for it.
    QStringList MissingEvents(const AccessibleSnapshot& before, const AccessibleSnapshot& after) const;

private:
    struct Event
    {
        QObject* object;
        QAccessible::Event type;
        QAccessible::State changed; ///< of QAccessible::StateChanged
    };

    bool Has(QObject* object, const QVector<QAccessible::Event>& types) const;
    bool HasText(QObject* object) const;
    bool HasStateChange(QObject* object, bool (*hasChanged)(QAccessible::State)) const;

    static void Record(QAccessibleEvent* event);

    QVector<Event> events;
    QAccessible::UpdateHandler previous;
};
