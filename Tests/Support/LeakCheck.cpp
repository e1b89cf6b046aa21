#include <Support/LeakCheck.h>

#include <QApplication>
#include <QWidget>
#include <QtTest>

namespace Support {

namespace {

// Omits the desktop widget, which Qt creates on first use and keeps, and tool tips, which Qt deletes with a delay.
QStringList Widgets()
{
    QStringList names;
    for (const QWidget* widget : QApplication::allWidgets()) {
        if (widget->windowType() != Qt::Desktop && !widget->inherits("QTipLabel"))
            names += widget->metaObject()->className();
    }
    return names;
}

// Omits objects of Qt, some of which are created on first use and kept.
QStringList Objects()
{
    QStringList names;
    for (const QObject* object : qApp->findChildren<QObject*>()) {
        const QString name = object->metaObject()->className();
        if (!name.startsWith('Q'))
            names += name;
    }
    return names;
}

} // namespace

LeakCheck::LeakCheck() : objects(Objects()) {}

LeakCheck::~LeakCheck()
{
    // The first pass may create objects that are deleted later.
    for (int i = 0; i < 2; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    QCOMPARE(Widgets().join(", "), QString());
    QStringList more = Objects();
    for (const QString& name : objects)
        more.removeOne(name);
    QCOMPARE(more.join(", "), QString());
}

} // namespace Support
