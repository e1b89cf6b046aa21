#pragma once

#include <QSlider>

namespace Zelkor::Vx {

/// A horizontal slider that tells where its handle stands, and that may be deleted by whoever hears of its value.
class TickSlider : public QSlider
{
public:
    explicit TickSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {}

    /// Where the middle of the handle is at this value if the slider were this wide: pixels from the end where the
    /// values begin, which is the right one from right to left.
    int HandleX(int value, int width) const;

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace Zelkor::Vx
