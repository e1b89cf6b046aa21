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
        for (const char* scheme : {"http", "https", "mailto", "file"})
            QDesktopServices::setUrlHandler(scheme, this, "Ignore"); // until this object is destroyed
    }

private Q_SLOTS:
    void Ignore(const QUrl&) {}
};

} // namespace Support
