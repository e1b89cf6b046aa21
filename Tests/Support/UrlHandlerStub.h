#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

namespace Support {

/// Prevents QDesktopServices from opening URLs in other programs.
class UrlHandlerStub : public QObject
{
    Q_OBJECT

public:
    UrlHandlerStub()
    {
        for (const char* scheme : SCHEMES)
            QDesktopServices::setUrlHandler(scheme, this, "Ignore");
    }

    ~UrlHandlerStub() override
    {
        for (const char* scheme : SCHEMES)
            QDesktopServices::unsetUrlHandler(scheme);
    }

private Q_SLOTS:
    void Ignore(const QUrl&) {}

private:
    static constexpr const char* SCHEMES[] = {"http", "https", "mailto", "file"};
};

} // namespace Support
