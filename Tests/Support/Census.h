#pragma once

#include <QStringList>

namespace Support {

/// Fails the running test when, at its end, there are other widgets or objects of the application than at its
/// beginning.
class Census
{
public:
    Census();
    ~Census();

private:
    QStringList objects;
};

} // namespace Support
