#pragma once

#include <QHBoxLayout>
#include <QVector>

class ZLabel;

namespace Zelkor::Vx {

class TickSlider;

/// A box layout that centres labels over the ticks of a slider. Internal.
///
/// The first label starts at the left edge, the last one ends at the right edge, in right-to-left layout mirrored.
/// Where two labels do not fit side by side, the wider one shrinks first.
class TickLabelLayout : public QHBoxLayout
{
public:
    struct Extent
    {
        int from;  ///< pixels from the leading edge
        int width; ///< pixels
    };

    /// Returns the extents of labels with these preferred widths over evenly spaced ticks, in a row of `rowWidth`.
    static QVector<Extent> ComputeExtents(const QVector<int>& preferred, int rowWidth, int firstTick, int lastTick);

    /// Returns the width of a row that fits all labels, with the outer ticks `inset` pixels away from its ends.
    static int PreferredWidth(const QVector<int>& preferred, int inset);

    /// Installs the layout on `frame`, which is above the slider and equally wide.
    TickLabelLayout(QWidget* frame, const TickSlider* slider);

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    QVector<ZLabel*> Labels() const;

    const TickSlider* slider;
};

} // namespace Zelkor::Vx
