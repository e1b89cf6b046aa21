#include "HighDpi.h"

#include <QGuiApplication>

namespace Zelkor::Examples {

void EnableHighDpiScaling()
{
    // Qt 6 does all this by default.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QGuiApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Otherwise the offscreen platform reports 100 dpi, a ratio of 1.04.
    if (qEnvironmentVariable("QT_QPA_PLATFORM") == "offscreen" && !qEnvironmentVariableIsSet("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", "96");
#endif
}

} // namespace Zelkor::Examples
