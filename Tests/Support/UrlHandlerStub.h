#pragma once

#include <QObject>
#include <QUrl>

namespace Support {

/// Prevents QDesktopServices from opening URLs in other programs.
class UrlHandlerStub : public QObject
{
    Q_OBJECT

public:
    UrlHandlerStub();
    ~UrlHandlerStub() override;

private Q_SLOTS:
    void Ignore(const QUrl&) {}
};

} // namespace Support
