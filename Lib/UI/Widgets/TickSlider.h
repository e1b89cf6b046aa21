#pragma once

#include <QSlider>

#include <functional>

namespace Zelkor::Vx {

/// A horizontal slider that computes the position of its handle for any value. Internal.
class TickSlider : public QSlider
{
public:
    /// Calls `listener` with each new value, after a mouse press has been handled. Unlike a slot of `QSlider`'s
    /// signals, the listener may delete the slider.
    TickSlider(std::function<void(int)> listener, QWidget* parent);

    /// Returns the centre of the handle for a value and a slider width, in pixels from the leading edge.
    int HandleX(int value, int width) const;

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    void CallListener();

    std::function<void(int)> listener;
    bool pressing = false;
};

} // namespace Zelkor::Vx
