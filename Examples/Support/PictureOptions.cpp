#include "PictureOptions.h"

#include <QCommandLineParser>
#include <QRegularExpression>

namespace Zelkor::Examples {

namespace {

constexpr int LONGEST_DELAY = 600000;

}

QSize ParseSize(const QCommandLineParser& parser, QString* error)
{
    if (!parser.isSet("size"))
        return QSize();
    const QString text = parser.value("size");
    const QRegularExpressionMatch match = QRegularExpression("^([0-9]{1,5})x([0-9]{1,5})$").match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    if (size.isEmpty() || size.width() > LARGEST_SIDE || size.height() > LARGEST_SIDE)
        *error = QString("--size takes WIDTHxHEIGHT with sides up to %1, not '%2'").arg(LARGEST_SIDE).arg(text);
    return size;
}

int ParseDelay(const QCommandLineParser& parser, QString* error)
{
    bool isNumber = false;
    const int delay = parser.value("after").toInt(&isNumber);
    if (!isNumber || delay < 0 || delay > LONGEST_DELAY)
        *error = QString("--after takes milliseconds up to %1, not '%2'").arg(LONGEST_DELAY).arg(parser.value("after"));
    return delay;
}

} // namespace Zelkor::Examples
