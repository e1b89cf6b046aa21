#include <Support/LinkTrap.h>

#include <QDesktopServices>

namespace Support {

namespace {

const char* const SCHEMES[] = {"http", "https", "mailto", "file"};

} // namespace

LinkTrap::LinkTrap()
{
    for (const char* scheme : SCHEMES)
        QDesktopServices::setUrlHandler(scheme, this, "Swallow");
}

LinkTrap::~LinkTrap()
{
    for (const char* scheme : SCHEMES)
        QDesktopServices::unsetUrlHandler(scheme);
}

} // namespace Support
