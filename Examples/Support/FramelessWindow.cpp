#include "FramelessWindow.h"

#include <UI/Kit/ZWindowChrome.h>
#include <UI/Widgets/CustomTitleBar.h>

namespace Zelkor::Examples {

Vx::UI::CustomTitleBar* ReplaceFrame(QWidget* window)
{
    auto* bar = new Vx::UI::CustomTitleBar(window);
    (new ZWindowChrome(window))->setTitleBar(bar);
    return bar;
}

} // namespace Zelkor::Examples
