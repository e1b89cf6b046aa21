#include "FlowLayout.h"

#include <QStyle>
#include <QWidget>

namespace Zelkor::Gallery {

FlowLayout::FlowLayout(QWidget* parent) : QLayout(parent) {}

FlowLayout::~FlowLayout()
{
    qDeleteAll(items);
}

void FlowLayout::addItem(QLayoutItem* item)
{
    items.append(item);
}

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return items.value(index);
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    return index >= 0 && index < items.size() ? items.takeAt(index) : nullptr;
}

int FlowLayout::heightForWidth(int width) const
{
    return Arrange(QRect(0, 0, width, 0), false);
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem* item : items)
        size = size.expandedTo(item->minimumSize());
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

void FlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    Arrange(rect, true);
}

int FlowLayout::Arrange(const QRect& rect, bool place) const
{
    const QMargins margins = contentsMargins();
    const QRect area = rect.marginsRemoved(margins);
    const Qt::LayoutDirection direction = parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    int x = area.left();
    int y = area.top();
    int rowHeight = 0;
    for (QLayoutItem* item : items) {
        const QSize size =
            item->sizeHint().boundedTo(QSize(qMax(area.width(), item->minimumSize().width()), QWIDGETSIZE_MAX));
        if (rowHeight > 0 && x + size.width() > area.left() + area.width()) {
            x = area.left();
            y += rowHeight + spacing();
            rowHeight = 0;
        }
        if (place)
            item->setGeometry(QStyle::visualRect(direction, area, QRect(QPoint(x, y), size)));
        x += size.width() + spacing();
        rowHeight = qMax(rowHeight, size.height());
    }
    return y + rowHeight - rect.top() + margins.bottom();
}

} // namespace Zelkor::Gallery
