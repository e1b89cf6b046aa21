#pragma once

#include <QStringList>

namespace Support {

/// Fails the running test if widgets, or more objects of the application than at construction, exist at destruction.
class LeakCheck
{
public:
    LeakCheck();
    ~LeakCheck();

private:
    QStringList objects;
};

} // namespace Support
