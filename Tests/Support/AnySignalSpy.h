#pragma once

#include <QMetaMethod>
#include <QObject>

#include <functional>

namespace Support {

/// Calls a function for each signal that the class of `object` or a base class other than QObject declares, regardless
/// of the arguments.
class AnySignalSpy : public QObject
{
    Q_OBJECT

public:
    AnySignalSpy(const QObject* object, std::function<void(const QMetaMethod&)> hear) : hear(std::move(hear))
    {
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("Hear()"));
        const QMetaObject* meta = object->metaObject();
        for (int i = QObject::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                connect(object, meta->method(i), this, slot);
        }
    }

private Q_SLOTS:
    void Hear() { hear(sender()->metaObject()->method(senderSignalIndex())); }

private:
    std::function<void(const QMetaMethod&)> hear;
};

} // namespace Support
