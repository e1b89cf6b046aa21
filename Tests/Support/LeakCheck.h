#pragma once

#include <QStringList>

namespace Support {

/// Fails the running test when, at its end, there are other widgets or objects of the application than at its
/// beginning.
class LeakCheck
{
public:
    LeakCheck();
    ~LeakCheck();

private:
    QStringList objects;
};

} // namespace Support
