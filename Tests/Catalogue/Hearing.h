#pragma once

#include <QAccessible>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QPointer>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <functional>

/// Has Qt send events as if a screen reader ran; false where that takes private headers that are not there.
bool TurnAccessibilityOn();

/// Calls `visit` for an interface and all that is visible below it. `owner` is the nearest object, `place` the way from
/// there to what has no object, such as a tab of a tab bar.
void VisitAccessible(QAccessibleInterface* root,
                     const std::function<void(QAccessibleInterface&, QObject* owner, const QString& place)>& visit);

/// What a screen reader can read of a widget and its parts at one time.
class Reading
{
public:
    explicit Reading(QWidget* widget);

    struct Part
    {
        QString name;
        QString description;
        QString value;
        QString text; ///< of a text that is edited
        QAccessible::State state;
    };

    QMap<QPair<QObject*, QString>, Part> parts;
};

/// While it lives, keeps the events that assistive technology gets.
class EventLog
{
public:
    EventLog();
    ~EventLog();

    void Clear();

    /// What changed between the readings without an event for it, in words.
    QStringList Unannounced(const Reading& before, const Reading& after) const;

private:
    struct Event
    {
        QObject* object;
        QAccessible::Event type;
        QAccessible::State changed; ///< of a change of the state
    };

    bool Has(QObject* object, const QVector<QAccessible::Event>& types) const;
    bool HasTextInside(QObject* object) const;
    bool HasStateChange(QObject* object, bool (*wasChanged)(QAccessible::State)) const;

    static void Keep(QAccessibleEvent* event);

    QVector<Event> events;
    QAccessible::UpdateHandler previous;
};
