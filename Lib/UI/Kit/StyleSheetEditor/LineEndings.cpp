#include <UI/Kit/StyleSheetEditor/LineEndings.h>

#include <QHash>
#include <QVector>

#include <algorithm>
#include <utility>

namespace Zelkor::Vx::UI::Kit::LineEndings {

namespace {

constexpr int REACH = 1000; ///< maximum number of lines to search for a moved one, which keeps Restore() linear
constexpr ushort CARRIAGE_RETURN = '\r';
constexpr ushort NEW_LINE = '\n';
constexpr ushort FRAME_BEGIN = 0xfdd0; ///< noncharacters that end a line in QTextDocument
constexpr ushort FRAME_END = 0xfdd1;

struct Line
{
    QStringView text;
    QString end; ///< empty for the last line
};

// Splits a text where QTextDocument begins a new line.
QVector<Line> Split(const QString& text)
{
    QVector<Line> lines;
    int start = 0;
    for (int i = 0; i < text.size(); ++i) {
        const ushort letter = text[i].unicode();
        if (letter != CARRIAGE_RETURN && letter != NEW_LINE && letter != QChar::ParagraphSeparator &&
            letter != FRAME_BEGIN && letter != FRAME_END)
            continue;
        const bool isPair = letter == CARRIAGE_RETURN && i + 1 < text.size() && text[i + 1] == QChar(NEW_LINE);
        lines.append({QStringView(text).mid(start, i - start), text.mid(i, isPair ? 2 : 1)});
        i += isPair;
        start = i + 1;
    }
    lines.append({QStringView(text).mid(start), QString()});
    return lines;
}

QString MostFrequentEnd(const QVector<Line>& lines)
{
    QHash<QString, int> counts;
    QString best(1, QChar(NEW_LINE));
    for (const Line& line : lines) {
        if (!line.end.isEmpty() && ++counts[line.end] > counts.value(best))
            best = line.end;
    }
    return best;
}

} // namespace

QString Restore(const QString& original, const QString& raw)
{
    const QVector<Line> before = Split(original);
    QVector<Line> now = Split(raw);
    const QString newEnd = MostFrequentEnd(before);
    int next = 0; // expected line of the original
    for (int i = 0; i + 1 < now.size(); ++i) {
        Line& line = now[i];
        const auto from = before.begin() + next;
        const auto to = before.begin() + std::min(int(before.size()), next + REACH);
        auto same = std::find_if(from, to, [&](const Line& other) { return other.text == line.text; });
        if (same != from && to - from > 1 && from[1].text == now[i + 1].text)
            same = from; // edited in place
        const bool isFound = same != to && !same->end.isEmpty();
        line.end = isFound ? same->end : newEnd;
        if (isFound)
            next = static_cast<int>(same - before.begin()) + 1;
    }
    QString text;
    text.reserve(raw.size());
    for (const Line& line : std::as_const(now))
        text.append(line.text.data(), int(line.text.size())).append(line.end);
    return text;
}

} // namespace Zelkor::Vx::UI::Kit::LineEndings
