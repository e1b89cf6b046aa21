#pragma once

#include <QSlider>

#include <functional>

namespace Zelkor::Vx {

/// A horizontal slider that knows where its handle stands.
class TickSlider : public QSlider
{
public:
    /// Calls `listener` with each new value, and after a press only when this is over: unlike a slot of the slider's
    /// own signals, the listener may delete the slider.
    TickSlider(std::function<void(int)> listener, QWidget* parent);

    /// Where the middle of the handle is at this value if the slider were this wide: pixels from the end where the
    /// values begin, which is the right one from right to left.
    int HandleX(int value, int width) const;

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    void CallListener();

    std::function<void(int)> listener;
    bool pressing = false;
};

} // namespace Zelkor::Vx
