#include <UI/Kit/Internal/TimeFormat.h>

#include <QLocale>
#include <QSet>
#include <QTime>

#include <cstdlib>

namespace Zelkor::Vx::UI::Kit {

namespace {

const QString DEFAULT_FORMAT = QStringLiteral("hh:mm:ss");

bool ShowsTime(const QString& format)
{
    // Two times that have no part in common.
    return QLocale::c().toString(QTime(1, 2, 3, 4), format) != QLocale::c().toString(QTime(14, 15, 16, 17), format);
}

// The parts of a time in a format, and what separates them: ':' or, where it begins with a digit that a number before
// it may swallow, '0'. Formats of the same shape lose the same.
QString ShapeOf(const QString& format)
{
    const QString partLetters = QStringLiteral("hHmszaApPtdMy");
    if (format.count('\'') % 2 != 0 || format.contains(QLatin1String("''")))
        return format;
    QString shape;
    bool isQuoted = false;
    bool isSeparated = false;
    for (const QChar character : format) {
        if (character == '\'') {
            isQuoted = !isQuoted;
        } else if (!isQuoted && partLetters.contains(character)) {
            shape += character;
            isSeparated = false;
        } else if (!isSeparated) {
            shape += character.isDigit() ? '0' : ':';
            isSeparated = true;
        }
    }
    return shape;
}

} // namespace

QStringList DistinctTimeFormats(const QStringList& formats)
{
    QSet<QString> shapes;
    QStringList distinct;
    for (const QString& format : formats) {
        const QString shape = ShapeOf(format);
        if (shapes.contains(shape))
            continue;
        shapes.insert(shape);
        distinct += format;
    }
    return distinct;
}

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
        if (smallestLoss == 0)
            break;
    }
    return choice;
}

QString TimeText(const QTime& time, const QStringList& formats, const QLocale& locale)
{
    const QString format = ChooseTimeFormat(formats, time);
    return locale.toString(time, format.isEmpty() ? DEFAULT_FORMAT : format);
}

} // namespace Zelkor::Vx::UI::Kit
