#include <UI/Widgets/TickLabelLayout.h>

#include <UI/Common/ClampToWidgetSize.h>
#include <UI/Common/TextMarks.h>
#include <UI/Kit/ZLabel.h>
#include <UI/Widgets/TickSlider.h>

#include <QFontMetricsF>
#include <QStyle>
#include <QtMath>

namespace Zelkor::Vx {

namespace {

using UI::Common::ClampToWidgetSize;

// Between two texts, so that they do not read as one.
constexpr int GAP = 8;

// Not the label's size hint, which is about the part of the text that is shown while there is no room for more.
int WantedWidth(const ZLabel* label)
{
    const QMargins margins = label->contentsMargins();
    const int around = ClampToWidgetSize(margins.left() + margins.right()) + 2 * ClampToWidgetSize(label->margin()) +
                       qMax(0, ClampToWidgetSize(label->indent()));
    const QString text = UI::Common::Embed(label->originalText());
    return qCeil(QFontMetricsF(label->font()).horizontalAdvance(text)) + around;
}

QVector<int> WantedWidths(const QVector<ZLabel*>& labels)
{
    QVector<int> wanted;
    wanted.reserve(labels.size());
    for (const ZLabel* label : labels)
        wanted.append(WantedWidth(label));
    return wanted;
}

} // namespace

QVector<TickLabelLayout::Extent> TickLabelLayout::Place(const QVector<int>& wanted, int rowWidth, int firstTick,
                                                        int lastTick)
{
    const int last = wanted.size() - 1;
    if (last == 0) {
        // The handle of a slider without range is at the left, whatever the direction.
        const int width = qMin(wanted[0], rowWidth);
        return {{firstTick <= rowWidth / 2 ? 0 : rowWidth - width, width}};
    }
    const auto tick = [&](int i) { return firstTick + int(qint64(lastTick - firstTick) * i / last); };
    const auto half = [&](int i) { return (wanted[i] + 1) / 2; };
    const auto begin = [&](int i) { return i == 0 ? 0 : i == last ? rowWidth - wanted[i] : tick(i) - half(i); };
    const auto end = [&](int i) { return i == 0 ? wanted[i] : i == last ? rowWidth : tick(i) + half(i); };

    QVector<Extent> places;
    places.reserve(wanted.size());
    int left = 0;
    for (int i = 0; i <= last; ++i) {
        int right = rowWidth;
        int nextLeft = 0;
        if (i < last) {
            // Two texts that want the same pixels meet in the middle, unless one of them does not reach as far.
            const int middle = (tick(i) + tick(i + 1)) / 2;
            const int ends = end(i) + GAP / 2;
            const int begins = begin(i + 1) - GAP / 2;
            const int border = ends <= begins || ends <= middle ? ends : qMax(begins, middle);
            right = border - GAP / 2;
            nextLeft = border + GAP / 2;
        }
        const int room = i == 0 ? right : i == last ? rowWidth - left : 2 * qMin(tick(i) - left, right - tick(i));
        const int width = qBound(0, wanted[i], qMax(0, room));
        places.append({i == 0 ? 0 : i == last ? rowWidth - width : tick(i) - width / 2, width});
        left = nextLeft;
    }
    return places;
}

int TickLabelLayout::RoomyWidth(const QVector<int>& wanted, int inset)
{
    const int last = wanted.size() - 1;
    if (last <= 0)
        return wanted.value(0);
    // How far a label reaches to the side of its tick, which is rounded to a pixel, as is half of the label.
    const auto reach = [&](int i) { return 1 + (i == 0 || i == last ? wanted[i] - inset : (wanted[i] + 1) / 2); };
    int distance = 0;
    for (int i = 0; i < last; ++i)
        distance = qMax(distance, reach(i) + GAP + reach(i + 1));
    return int(qMin(qint64(distance) * last + 2 * inset, qint64(QWIDGETSIZE_MAX)));
}

TickLabelLayout::TickLabelLayout(QWidget* frame, const TickSlider* slider) : QHBoxLayout(frame), slider(slider)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(0);
}

QSize TickLabelLayout::sizeHint() const
{
    const QMargins margins = contentsMargins();
    const int width = RoomyWidth(WantedWidths(Labels()), slider->HandleX(0, slider->width()));
    return {width + margins.left() + margins.right(), QHBoxLayout::sizeHint().height()};
}

// Labels can be elided, so the slider decides how narrow the row may be.
QSize TickLabelLayout::minimumSize() const
{
    return {0, QHBoxLayout::minimumSize().height()};
}

void TickLabelLayout::setGeometry(const QRect& rect)
{
    // Not that of the box: a label that takes two widths in turn would elide its text, and ask for a layout, each time.
    QLayout::setGeometry(rect);
    const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
    const QRect row = QStyle::visualRect(direction, rect, contentsRect());
    const QVector<ZLabel*> labels = Labels();
    const auto tick = [&](int value) { return slider->HandleX(value, rect.width()) - (row.x() - rect.x()); };
    const QVector<Extent> places = Place(WantedWidths(labels), row.width(), tick(0), tick(slider->maximum()));
    for (int i = 0; i < labels.size(); ++i) {
        const QRect place(row.x() + places[i].from, row.y(), places[i].width, row.height());
        labels[i]->setGeometry(QStyle::visualRect(direction, rect, place));
    }
}

QVector<ZLabel*> TickLabelLayout::Labels() const
{
    QVector<ZLabel*> labels;
    for (int i = 0; i < count(); ++i) {
        if (auto* label = qobject_cast<ZLabel*>(itemAt(i)->widget()))
            labels.append(label);
    }
    return labels;
}

} // namespace Zelkor::Vx
