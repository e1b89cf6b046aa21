#include "CardGrid.h"

#include <QStyle>
#include <QWidget>

namespace Zelkor::Gallery {

namespace {

constexpr int SMALLEST_COLUMN = 120;

int HeightFor(const QLayoutItem& item, int width)
{
    return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

} // namespace

/// Returns the places of the items, from left to right.
QVector<QRect> CardGrid::Cells(const QRect& area, int columns) const
{
    const int step = qMax(1, (area.width() + spacing()) / columns);
    QVector<QRect> cells;
    int column = 0;
    int firstOfRow = 0;
    QPoint place = area.topLeft();
    int rowHeight = 0;
    for (int i = 0; i < count(); ++i) {
        const int wanted = itemAt(i)->sizeHint().width() + spacing();
        const int span = qBound(1, (wanted + step - 1) / step, columns);
        if (column + span > columns) {
            place = QPoint(area.left(), place.y() + rowHeight + spacing());
            firstOfRow = i;
            column = rowHeight = 0;
        }
        const int width = qMax(span * step - spacing(), itemAt(i)->minimumSize().width());
        rowHeight = qMax(rowHeight, HeightFor(*itemAt(i), width));
        cells.append(QRect(place, QSize(width, 0)));
        for (int other = firstOfRow; other <= i; ++other)
            cells[other].setHeight(rowHeight);
        column += span;
        place.rx() += span * step;
    }
    return cells;
}

int CardGrid::Arrange(const QRect& rect, bool place) const
{
    const QMargins margins = contentsMargins();
    const QRect area = rect.marginsRemoved(margins);
    QVector<QRect> best;
    for (int columns = 1; columns == 1 || (area.width() + spacing()) / columns >= SMALLEST_COLUMN; ++columns) {
        const QVector<QRect> cells = Cells(area, columns);
        if (best.isEmpty() || (!cells.isEmpty() && cells.last().bottom() < best.last().bottom()))
            best = cells;
    }
    const Qt::LayoutDirection direction = parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    for (int i = 0; place && i < best.size(); ++i)
        itemAt(i)->setGeometry(QStyle::visualRect(direction, area, best[i]));
    return (best.isEmpty() ? area.top() : best.last().bottom() + 1) - rect.top() + margins.bottom();
}

} // namespace Zelkor::Gallery
