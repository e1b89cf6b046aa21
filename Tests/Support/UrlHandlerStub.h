#pragma once

#include <QObject>
#include <QUrl>

namespace Support {

/// While it lives, web pages and messages are not opened by another program.
class UrlHandlerStub : public QObject
{
    Q_OBJECT

public:
    UrlHandlerStub();
    ~UrlHandlerStub() override;

private Q_SLOTS:
    void Swallow(const QUrl&) {}
};

} // namespace Support
