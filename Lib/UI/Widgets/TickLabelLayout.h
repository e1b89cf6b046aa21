#pragma once

#include <QHBoxLayout>
#include <QVector>

class ZLabel;

namespace Zelkor::Vx {

class TickSlider;

/// The layout of the labels over a slider's ticks: a box of labels with stretches between them.
///
/// Stretches would leave even gaps, and so put labels of different widths beside their ticks. So this layout places
/// the labels itself: the first one begins at the edge, the last one ends there, and the others have their middle over
/// the tick. Where two texts do not fit beside each other, the longer one gives way first.
class TickLabelLayout : public QHBoxLayout
{
public:
    struct Extent
    {
        int from;
        int width;
    };

    /// Places labels that want these widths, one over each of evenly spread ticks, in a row from 0 to `rowWidth`.
    static QVector<Extent> Place(const QVector<int>& wanted, int rowWidth, int firstTick, int lastTick);

    /// The width of a row that has room for all of them, whose outer ticks are `inset` away from its ends.
    static int RoomyWidth(const QVector<int>& wanted, int inset);

    /// On `frame`, which stands over the slider and is as wide.
    TickLabelLayout(QWidget* frame, const TickSlider* slider);

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    QVector<ZLabel*> Labels() const;

    const TickSlider* slider;
};

} // namespace Zelkor::Vx
