#include "Offscreen.h"

#include <QApplication>
#include <QFont>

namespace Zelkor::Examples {

namespace {

constexpr int FONT_POINT_SIZE = 10;

QtMessageHandler previousHandler = nullptr;

void FilterMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith("This plugin does not support"))
        previousHandler(type, context, message);
}

} // namespace

void AdaptToOffscreen()
{
    if (QApplication::platformName() != "offscreen")
        return;
    previousHandler = qInstallMessageHandler(FilterMessage);
    QFont font = QApplication::font();
    font.setPointSize(FONT_POINT_SIZE);
    QApplication::setFont(font);
}

} // namespace Zelkor::Examples
