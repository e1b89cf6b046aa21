#pragma once

#include <UI/Kit/Internal/SliderThumbHost.h>

#include <QMap>
#include <QPair>
#include <QString>

class QSlider;
class QWheelEvent;

namespace Zelkor::Vx::UI::Kit {

/// The thumbs of a ZSlider: names, stacking order, selection, keyboard focus, drags that start on the groove, and the
/// default thumb, which follows the value of the slider and is followed by it.
///
/// The thumbs are children of the slider, which owns them. A slot of any signal may delete a thumb or the slider.
class SliderThumbController : public SliderThumbHost
{
public:
    explicit SliderThumbController(QSlider& slider) : slider(slider) {}

    const QMap<QString, ZSliderThumb*>& thumbs() const { return byName; }
    ZSliderThumb* defaultThumb() const { return valueThumb; }
    ZSliderThumb* selectedThumb() const { return selected; }

    /// Registers a new thumb, whose name is free.
    void insert(const QString& name, ZSliderThumb* thumb);

    /// Makes `thumb` the default thumb, at the value of the slider.
    void setDefaultThumb(ZSliderThumb* thumb);

    /// Checks `thumb`; with null, unchecks the selected one.
    void select(ZSliderThumb* thumb);

    /// Called after a thumb emitted `toggled`: keeps the selection and unchecks the other thumbs.
    void handleToggled(ZSliderThumb* thumb, bool on);

    /// Clamps a position of the slider to what the default thumb can reach.
    int boundedByDefaultThumb(int value) const;

    /// Called after the slider or the default thumb emitted `valueChanged`: the other one follows.
    void handleSliderValue(int value) { synchronise(Follower::THUMB, value); }
    void handleThumbValue(int value) { synchronise(Follower::SLIDER, value); }

    /// Clamps the values to the range of the slider and moves the thumbs to them, without signals.
    void updateThumbs();

    /// Whether a dragged thumb snaps to the default thumb, and at which distance in thousandths of the maximum.
    bool isSnapping() const { return snapping; }
    void setSnapping(bool on) { snapping = on; }
    int snapDistance() const { return snapThousandths; }
    void setSnapDistance(int thousandths) { snapThousandths = thousandths; }

    /// Handle a drag that starts on the groove, which moves the selected or the default thumb.
    void startGrooveDrag(const QPoint& point);
    void continueGrooveDrag(const QPoint& point);
    void finishGrooveDrag();
    bool isGrooveDragged() const { return draggingFromGroove; }

    /// Handle input of the slider.
    void pressKey(QKeyEvent& event);
    void turnWheel(QWheelEvent& event);

    int valueForDrag(const ZSliderThumb& thumb, const QPoint& point) const override;
    bool isSelected(const ZSliderThumb& thumb) const override { return selected == &thumb; }
    bool sendsKeysTo(const ZSliderThumb& thumb) const override;
    bool hasOtherThumbAt(const QPoint& point, const ZSliderThumb& thumb) const override;
    bool moveFocus(QKeyEvent& event, ZSliderThumb* from) override;
    bool stepDefaultThumb(const ZSliderThumb& thumb, QKeyEvent& event) override;
    void setZOrder(ZSliderThumb& thumb, int order) override;
    void restack() override;
    void forget(ZSliderThumb* thumb) override;

private:
    enum class Follower { NONE, THUMB, SLIDER };

    /// Changes the value of the slider as QSlider does for a key, towards the side that the key points to.
    virtual void stepSlider(QKeyEvent& event) = 0;

    int valueAt(const QPoint& point) const;
    ZSliderThumb* grooveThumb() const;
    ZSliderThumb* keyThumb() const { return selected ? selected : valueThumb; }
    void synchronise(Follower follower, int value);

    QSlider& slider;
    QMap<QString, ZSliderThumb*> byName;
    QMap<QPair<int, QString>, ZSliderThumb*> stacking; ///< by order and name, the lowest thumb first
    ZSliderThumb* selected = nullptr;
    ZSliderThumb* valueThumb = nullptr;
    bool draggingFromGroove = false;
    bool snapping = false;
    int snapThousandths = 20;
    bool synchronising = false;
    Follower pending = Follower::NONE; ///< which one has to follow after a change during the synchronisation
};

} // namespace Zelkor::Vx::UI::Kit
