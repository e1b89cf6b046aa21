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

// Pixels between two texts, so that they do not read as one.
constexpr int GAP = 8;

// Measures the whole text, since the size hint of an eliding label covers the shown part only.
int PreferredLabelWidth(const ZLabel* label)
{
    const QMargins margins = label->contentsMargins();
    const int around = ClampToWidgetSize(margins.left() + margins.right()) + 2 * ClampToWidgetSize(label->margin()) +
                       qMax(0, ClampToWidgetSize(label->indent()));
    const QString text = UI::Common::Embed(label->originalText());
    return qCeil(QFontMetricsF(label->font()).horizontalAdvance(text)) + around;
}

QVector<int> PreferredWidths(const QVector<ZLabel*>& labels)
{
    QVector<int> preferred;
    preferred.reserve(labels.size());
    for (const ZLabel* label : labels)
        preferred.append(PreferredLabelWidth(label));
    return preferred;
}

} // namespace

QVector<TickLabelLayout::Extent> TickLabelLayout::ComputeExtents(const QVector<int>& preferred, int rowWidth,
                                                                 int firstTick, int lastTick)
{
    const int last = preferred.size() - 1;
    if (last == 0) {
        // The handle of a slider without a range is at the left, also in right-to-left layout.
        const int width = qMin(preferred[0], rowWidth);
        return {{firstTick <= rowWidth / 2 ? 0 : rowWidth - width, width}};
    }
    const auto tick = [&](int i) { return firstTick + int(qint64(lastTick - firstTick) * i / last); };
    const auto half = [&](int i) { return (preferred[i] + 1) / 2; };
    const auto begin = [&](int i) { return i == 0 ? 0 : i == last ? rowWidth - preferred[i] : tick(i) - half(i); };
    const auto end = [&](int i) { return i == 0 ? preferred[i] : i == last ? rowWidth : tick(i) + half(i); };

    QVector<Extent> places;
    places.reserve(preferred.size());
    int left = 0;
    for (int i = 0; i <= last; ++i) {
        int right = rowWidth;
        int nextLeft = 0;
        if (i < last) {
            // Two labels that overlap meet in the middle between their ticks, or where the narrower one ends.
            const int middle = (tick(i) + tick(i + 1)) / 2;
            const int ends = end(i) + GAP / 2;
            const int begins = begin(i + 1) - GAP / 2;
            const int border = ends <= begins || ends <= middle ? ends : qMax(begins, middle);
            right = border - GAP / 2;
            nextLeft = border + GAP / 2;
        }
        const int room = i == 0 ? right : i == last ? rowWidth - left : 2 * qMin(tick(i) - left, right - tick(i));
        const int width = qBound(0, preferred[i], qMax(0, room));
        places.append({i == 0 ? 0 : i == last ? rowWidth - width : tick(i) - width / 2, width});
        left = nextLeft;
    }
    return places;
}

int TickLabelLayout::PreferredWidth(const QVector<int>& preferred, int inset)
{
    const int last = preferred.size() - 1;
    if (last <= 0)
        return preferred.value(0);
    // Extent of a label to the side of its tick. Tick position and half width are rounded to pixels.
    const auto reach = [&](int i) { return 1 + (i == 0 || i == last ? preferred[i] - inset : (preferred[i] + 1) / 2); };
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
    const int width = PreferredWidth(PreferredWidths(Labels()), slider->HandleX(0, slider->width()));
    return {width + margins.left() + margins.right(), QHBoxLayout::sizeHint().height()};
}

// Labels can be elided, so only the slider limits the width.
QSize TickLabelLayout::minimumSize() const
{
    return {0, QHBoxLayout::minimumSize().height()};
}

void TickLabelLayout::setGeometry(const QRect& rect)
{
    // Skips QHBoxLayout::setGeometry(): a label that changes its width twice would elide its text and request a layout
    // each time.
    QLayout::setGeometry(rect);
    const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
    const QRect row = QStyle::visualRect(direction, rect, contentsRect());
    const QVector<ZLabel*> labels = Labels();
    const auto tick = [&](int value) { return slider->HandleX(value, rect.width()) - (row.x() - rect.x()); };
    const QVector<Extent> places =
        ComputeExtents(PreferredWidths(labels), row.width(), tick(0), tick(slider->maximum()));
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
