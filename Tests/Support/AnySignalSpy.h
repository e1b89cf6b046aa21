#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QVector>

#include <functional>

namespace Support {

/// Returns the signals that the class and its base classes declare, except those of QObject.
QVector<QMetaMethod> SignalsOf(const QObject* object);

/// Calls a function for all signals of `object`, or for the given ones, regardless of their arguments.
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
