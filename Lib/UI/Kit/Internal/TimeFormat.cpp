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
    // The two times differ in every part.
    return QLocale::c().toString(QTime(1, 2, 3, 4), format) != QLocale::c().toString(QTime(14, 15, 16, 17), format);
}

// Returns the format with each separator replaced by ':', or by '0' if it begins with a digit, which a number before it
// may absorb. Formats of the same shape lose the same precision.
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
    // One locale for writing and reading, because AM and PM differ between locales.
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
