#pragma once

#include "FlowLayout.h"

#include <QVector>

namespace Zelkor::Gallery {

/// Arranges items in rows on a grid of equal columns. A wide item spans several columns; the items of a row have the
/// same height. Chooses the number of columns that takes the least height.
class CardGrid : public FlowLayout
{
    Q_OBJECT

public:
    using FlowLayout::FlowLayout;

protected:
    int Arrange(const QRect& rect, bool place) const override;

private:
    QVector<QRect> Cells(const QRect& area, int columns) const;
};

} // namespace Zelkor::Gallery
