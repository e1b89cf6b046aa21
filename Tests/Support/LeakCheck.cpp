#include <Support/LeakCheck.h>

#include <QApplication>
#include <QWidget>
#include <QtTest>

namespace Support {

namespace {

// Without the desktop, which the application makes when it first needs it, and keeps; and without Qt's tool tip, which
// goes by itself some time after its widget.
QStringList Widgets()
{
    QStringList names;
    for (const QWidget* widget : QApplication::allWidgets()) {
        if (widget->windowType() != Qt::Desktop && !widget->inherits("QTipLabel"))
            names += widget->metaObject()->className();
    }
    return names;
}

// Without those of Qt, some of which come when they are first needed, and stay.
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
    // The first one may make objects that want to be deleted as well.
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
