#pragma once

#include <QPointer>
#include <QToolButton>

#include <limits>

class QSlider;
class ZSlider;

namespace Zelkor::Vx::UI::Kit {
class SliderThumbController;
class SliderThumbHost;
} // namespace Zelkor::Vx::UI::Kit

/// One thumb of a ZSlider, made by `ZSlider::addThumb` and owned by the slider; whoever deletes it does no harm.
///
/// A thumb has a value of its own within the slider's range and its own limits. It can be dragged, and a click selects
/// it, which shows as the checked state. While it has the keyboard, or is selected and the slider has it, the arrow
/// keys ask its owner for a step by `stepped`; so does the wheel over the selected thumb. The owner decides what a step
/// is. While nothing is connected to `stepped` of the default thumb, its keys are those of the slider. Where thumbs lie
/// over one another, a click that leaves its thumb unselected lets the one beneath come up.
///
/// A thumb is 14 by 14 pixels unless the style sheet gives it another size, and is selected there by
/// [styleTag="..."], `:checked` and `:focus`.
class ZSliderThumb : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name WRITE setName)
    Q_PROPERTY(QString styleTag READ styleTag WRITE setStyleTag)
    Q_PROPERTY(bool isSelectable READ isSelectable WRITE setSelectable)
    Q_PROPERTY(bool isDraggable READ isDraggable WRITE setDraggable)
    Q_PROPERTY(int pointOffset READ pointOffset WRITE setPointOffset)
    Q_PROPERTY(int parentMargin READ parentMargin WRITE setParentMargin)
    Q_PROPERTY(int zOrder READ zOrder WRITE setZOrder)

public:
    /// At the slider's minimum. The slider owns the thumb; without one, the thumb shows nothing and takes no input.
    explicit ZSliderThumb(ZSlider* slider);
    ~ZSliderThumb() override;

    /// What assistive technology calls the thumb, unless it has an accessible name of its own. The slider goes on
    /// knowing it by the name under which it was added.
    QString name() const { return currentName; }
    void setName(const QString& name);

    QString styleTag() const { return currentStyleTag; }
    void setStyleTag(const QString& tag);

    /// Whether a person can select the thumb; on by default.
    bool isSelectable() const { return selectable; }
    void setSelectable(bool on) { selectable = on; }

    /// Whether the thumb can be dragged; on by default.
    bool isDraggable() const { return draggable; }
    void setDraggable(bool on) { draggable = on; }

    /// Distance in pixels from the thumb's left or upper edge to the spot that points at the value; 7 by default.
    int pointOffset() const { return currentPointOffset; }
    void setPointOffset(int offset);

    /// Distance in pixels from the slider's upper edge, or left edge when that is vertical; 0 by default.
    int parentMargin() const { return currentParentMargin; }
    void setParentMargin(int margin);

    /// Thumbs of a higher order lie above; among equals the later name does. 0 by default.
    int zOrder() const { return currentZOrder; }
    void setZOrder(int order);

    /// Within the slider's range and then within the limits, of which the upper one wins when they cross.
    int value() const { return currentValue; }
    void setValue(int value);

    /// Limits of the value, without effect by default. Setting one moves the value into it.
    int lowerLimit() const { return lowerBound; }
    void setLowerLimit(int limit);
    int upperLimit() const { return upperBound; }
    void setUpperLimit(int limit);

    /// Whether a press on the groove moves this thumb when it is the selected or the default one; on by default.
    bool movesOnGrooveClick() const { return followsGroove; }
    void setMovesOnGrooveClick(bool on) { followsGroove = on; }

    /// Whether the wheel over the selected thumb emits `stepped`; on by default.
    bool isWheelStepping() const { return wheelStepping; }
    void setWheelStepping(bool on) { wheelStepping = on; }

    /// Whether arrow keys emit `stepped`; on by default.
    bool isKeyStepping() const { return keyStepping; }
    void setKeyStepping(bool on) { keyStepping = on; }

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The thumb has another value. A range that changes moves thumbs without this.
    void valueChanged(int value);

    /// The thumb is dragged from now on.
    void dragStarted();

    /// The drag is over; also when the thumb was hidden or disabled meanwhile.
    void dragFinished();

    /// Asks for steps of 120 units each; positive for Up, Right and the wheel turned away. The thumb does not move. The
    /// values of an upright slider grow downwards: its owner subtracts the steps, so that Up moves the thumb up.
    void stepped(int factor);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void nextCheckState() override;

private:
    friend class Zelkor::Vx::UI::Kit::SliderThumbController;

    ZSliderThumb(QSlider* slider, Zelkor::Vx::UI::Kit::SliderThumbHost* host);

    int bounded(int value) const;
    void place();
    bool handleUnchecked(void (ZSliderThumb::*handler)(QMouseEvent*), QMouseEvent* event);
    void pressButton(QMouseEvent* event);
    void releaseButton(QMouseEvent* event);
    void finishDrag();
    void check(bool on);

    QPointer<QSlider> slider;
    Zelkor::Vx::UI::Kit::SliderThumbHost* host; ///< valid as long as the slider exists
    QPoint pressPosition{-1, -1};
    QString key; ///< under which the slider knows it
    QString currentName;
    QString currentStyleTag;
    bool armed = false;    ///< pressed with the left button, and draggable
    bool dragging = false; ///< the mouse moved since
    int currentValue;
    int upperBound = std::numeric_limits<int>::max();
    int lowerBound = std::numeric_limits<int>::min();
    int currentZOrder = 0;
    int currentPointOffset = 7;
    int currentParentMargin = 0;
    bool selectable = true;
    bool draggable = true;
    bool followsGroove = true;
    bool wheelStepping = true;
    bool keyStepping = true;
};
