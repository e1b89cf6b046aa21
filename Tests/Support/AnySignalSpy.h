#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QVector>

#include <functional>

namespace Support {

/// The signals that the classes below QObject declare.
QVector<QMetaMethod> SignalsOf(const QObject* object);

/// While it lives, calls `hear` at every signal of `object`, or at those of `heard`, whatever their arguments.
class AnySignalSpy : public QObject
{
    Q_OBJECT

public:
    AnySignalSpy(const QObject* object, std::function<void()> hear);
    AnySignalSpy(const QObject* object, const QVector<QMetaMethod>& heard, std::function<void()> hear);

private Q_SLOTS:
    void Hear() { hear(); }

private:
    std::function<void()> hear;
};

} // namespace Support
