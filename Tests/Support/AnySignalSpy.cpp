#include <Support/AnySignalSpy.h>

#include <utility>

namespace Support {

QVector<QMetaMethod> SignalsOf(const QObject* object)
{
    QVector<QMetaMethod> found;
    const QMetaObject* meta = object->metaObject();
    for (int i = QObject::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            found.append(meta->method(i));
    }
    return found;
}

AnySignalSpy::AnySignalSpy(const QObject* object, std::function<void()> hear)
    : AnySignalSpy(object, SignalsOf(object), std::move(hear))
{}

AnySignalSpy::AnySignalSpy(const QObject* object, const QVector<QMetaMethod>& heard, std::function<void()> hear)
    : hear(std::move(hear))
{
    const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("Hear()"));
    for (const QMetaMethod& signal : heard)
        connect(object, signal, this, slot);
}

} // namespace Support
