#pragma once

#include <QEvent>
#include <QObject>

#include <functional>
#include <utility>

namespace Support {

/// Calls a function with each event of `object`, before the object handles it.
class EventSpy : public QObject
{
public:
    EventSpy(QObject* object, std::function<void(QEvent::Type, QEvent*)> see) : see(std::move(see))
    {
        object->installEventFilter(this);
    }

private:
    bool eventFilter(QObject*, QEvent* event) override
    {
        see(event->type(), event);
        return false;
    }

    std::function<void(QEvent::Type, QEvent*)> see;
};

} // namespace Support
