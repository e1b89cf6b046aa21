#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <functional>
#include <set>
#include <utility>

namespace Support {

/// Calls a function with each event of an object, or of all objects for the application, and filters the events for
/// which it returns true.
class EventFilter : public QObject
{
public:
    EventFilter(QObject* watched, std::function<bool(QObject*, QEvent*)> filter) : filter(std::move(filter))
    {
        watched->installEventFilter(this);
    }

private:
    bool eventFilter(QObject* object, QEvent* event) override { return filter(object, event); }

    std::function<bool(QObject*, QEvent*)> filter;
};

/// Calls a function with each event of `object`, before the object handles it.
class EventSpy : public EventFilter
{
public:
    EventSpy(QObject* object, const std::function<void(QEvent::Type, QEvent*)>& see)
        : EventFilter(object, [see](QObject*, QEvent* event) {
              see(event->type(), event);
              return false;
          })
    {}
};

/// Swallows the first event of each type for each object.
class EventSwallower
{
    std::set<std::pair<QObject*, QEvent::Type>> swallowed;
    EventFilter filter{qApp, [this](QObject* receiver, QEvent* event) {
                           return swallowed.insert({receiver, event->type()}).second;
                       }};
};

} // namespace Support
