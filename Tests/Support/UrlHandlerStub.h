#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

namespace Support {

/// Records the URLs that QDesktopServices opens and prevents other programs from opening them.
class UrlHandlerStub : public QObject
{
    Q_OBJECT

public:
    UrlHandlerStub()
    {
        for (const char* scheme : SCHEMES)
            QDesktopServices::setUrlHandler(scheme, this, "Open");
    }

    ~UrlHandlerStub() override
    {
        for (const char* scheme : SCHEMES)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QList<QUrl> opened;

private Q_SLOTS:
    void Open(const QUrl& url) { opened += url; }

private:
    static constexpr const char* SCHEMES[] = {"http", "https", "mailto", "file", "javascript"};
};

} // namespace Support
