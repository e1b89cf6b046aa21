#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <set>
#include <utility>

namespace Support {

/// An application event filter that swallows the first event of each type for each object.
class EventSwallower : public QObject
{
public:
    EventSwallower() { QCoreApplication::instance()->installEventFilter(this); }

private:
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        return swallowed.insert({receiver, event->type()}).second;
    }

    std::set<std::pair<QObject*, QEvent::Type>> swallowed;
};

} // namespace Support
