#pragma once

#include <QObject>
#include <QUrl>

namespace Support {

/// While it lives, web pages and messages are not opened by another program.
class LinkTrap : public QObject
{
    Q_OBJECT

public:
    LinkTrap();
    ~LinkTrap() override;

private Q_SLOTS:
    void Swallow(const QUrl&) {}
};

} // namespace Support
