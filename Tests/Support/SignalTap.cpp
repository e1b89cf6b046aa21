#include <Support/SignalTap.h>

#include <QMetaMethod>

#include <utility>

namespace Support {

SignalTap::SignalTap(const QObject* object, std::function<void()> hear) : hear(std::move(hear))
{
    const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("Hear()"));
    const QMetaObject* meta = object->metaObject();
    for (int i = QObject::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            connect(object, meta->method(i), this, slot);
    }
}

} // namespace Support
