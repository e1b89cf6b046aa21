#include <Support/UrlHandlerStub.h>

#include <QDesktopServices>

namespace Support {

namespace {

const char* const SCHEMES[] = {"http", "https", "mailto", "file"};

} // namespace

UrlHandlerStub::UrlHandlerStub()
{
    for (const char* scheme : SCHEMES)
        QDesktopServices::setUrlHandler(scheme, this, "Ignore");
}

UrlHandlerStub::~UrlHandlerStub()
{
    for (const char* scheme : SCHEMES)
        QDesktopServices::unsetUrlHandler(scheme);
}

} // namespace Support
