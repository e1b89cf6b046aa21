#pragma once

#include <QSize>
#include <QString>

class QCommandLineParser;

namespace Zelkor::Examples {

constexpr int LARGEST_SIDE = 8192; ///< of a window, in pixels

/// Returns the value of --size, "900x640". Invalid if the option is not set. Sets `error` if the value cannot be parsed
/// or a side exceeds `LARGEST_SIDE`.
QSize ParseSize(const QCommandLineParser& parser, QString* error);

/// Returns the value of --after, in milliseconds. Sets `error` if the value cannot be parsed or exceeds ten minutes.
int ParseDelay(const QCommandLineParser& parser, QString* error);

} // namespace Zelkor::Examples
