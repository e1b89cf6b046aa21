#include <UI/Kit/TimeFormat.h>

#include <QLocale>
#include <QTime>

#include <cstdlib>

namespace {

const QString DEFAULT_FORMAT = QStringLiteral("hh:mm:ss");

bool ShowsTime(const QString& format)
{
    // Two times that have no part in common.
    return QLocale::c().toString(QTime(1, 2, 3, 4), format) != QLocale::c().toString(QTime(14, 15, 16, 17), format);
}

} // namespace

QString ChooseTimeFormat(const QStringList& formats, const QTime& time)
{
    // Written and read in one language, lest a morning gets lost between two.
    const QLocale locale = QLocale::c();
    QString choice;
    double smallestLoss = 1e300;
    for (const QString& format : formats) {
        const QTime readBack = locale.toTime(locale.toString(time, format), format);
        if (!readBack.isValid() || !ShowsTime(format))
            continue;
        const double loss = std::abs(time.msecsTo(readBack));
        if (loss < smallestLoss) {
            choice = format;
            smallestLoss = loss;
        }
    }
    return choice;
}

QString TimeText(const QTime& time, const QStringList& formats, const QLocale& locale)
{
    const QString format = ChooseTimeFormat(formats, time);
    return locale.toString(time, format.isEmpty() ? DEFAULT_FORMAT : format);
}
