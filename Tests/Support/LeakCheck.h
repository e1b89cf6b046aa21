#pragma once

#include <QApplication>
#include <QWidget>
#include <QtTest>

namespace Support {

/// Processes events and deferred deletions until the event loop is idle.
inline void Settle()
{
    // The first pass may create objects that are deleted later.
    for (int i = 0; i < 2; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

/// Fails the running test if widgets, or more objects of the application than at construction, exist at destruction.
class LeakCheck
{
public:
    LeakCheck() : objects(Objects()) {}

    ~LeakCheck()
    {
        Settle();
        QStringList more = Objects();
        for (const QString& name : objects)
            more.removeOne(name);
        // Omits the desktop widget, which Qt creates on first use and keeps, and tool tips, which Qt deletes with a
        // delay.
        for (const QWidget* widget : QApplication::allWidgets()) {
            if (widget->windowType() != Qt::Desktop && !widget->inherits("QTipLabel"))
                more += widget->metaObject()->className();
        }
        QCOMPARE(more.join(", "), QString());
    }

private:
    // Omits objects of Qt, some of which are created on first use and kept.
    static QStringList Objects()
    {
        QStringList names;
        for (const QObject* object : qApp->findChildren<QObject*>())
            names += object->metaObject()->className();
        return names.filter(QRegularExpression("^[^Q]"));
    }

    const QStringList objects;
};

} // namespace Support
