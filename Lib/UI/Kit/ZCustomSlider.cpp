#include <UI/Kit/ZCustomSlider.h>

#include <UI/Common/WheelPolicy.h>

using namespace Zelkor::Vx::UI;

namespace {

// Accepts touch pad events that would move a focused slider beyond its end. Events of a mouse wheel have no pixel delta
// and pass.
class WheelFilter : public QObject
{
public:
    explicit WheelFilter(QSlider* slider) : QObject(slider), slider(slider) {}

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Wheel && slider->hasFocus()) {
            const int delta = static_cast<QWheelEvent*>(event)->pixelDelta().y();
            const int position = slider->sliderPosition();
            if ((position == slider->minimum() && delta < 0) || (position == slider->maximum() && delta > 0)) {
                event->accept();
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

    QSlider* slider;
};

} // namespace

ZCustomSlider::ZCustomSlider(QWidget* parent) : QSlider(parent) {}

void ZCustomSlider::setEditableInFocus(bool on)
{
    editableInFocus = on;
    if (on)
        installWheelFilter();
    else
        removeWheelFilter();
}

void ZCustomSlider::wheelEvent(QWheelEvent* event)
{
    if (Common::AcceptWheelEvent(*this, *event, editableInFocus))
        QSlider::wheelEvent(event);
}

void ZCustomSlider::installWheelFilter()
{
    if (!wheelFilter)
        wheelFilter = new WheelFilter(this);
    installEventFilter(wheelFilter);
}

void ZCustomSlider::removeWheelFilter()
{
    if (!wheelFilter)
        return;
    removeEventFilter(wheelFilter);
    wheelFilter.clear();
}
