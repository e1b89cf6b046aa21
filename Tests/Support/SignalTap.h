#pragma once

#include <QObject>

#include <functional>

namespace Support {

/// While it lives, calls `hear` at every signal of `object` that a class below QObject declares, whatever its
/// arguments.
class SignalTap : public QObject
{
    Q_OBJECT

public:
    SignalTap(const QObject* object, std::function<void()> hear);

private Q_SLOTS:
    void Hear() { hear(); }

private:
    std::function<void()> hear;
};

} // namespace Support
