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

/// One thumb of a ZSlider, created by `ZSlider::addThumb` and owned by the slider. It may be deleted at any time.
///
/// A thumb has its own value within the range of the slider and its own limits. It can be dragged. A click selects it,
/// which is its checked state. Arrow keys emit `stepped` while the thumb has the focus, or while it is selected and the
/// slider has the focus; so does the wheel over the selected thumb. The owner decides how far a step is. If nothing is
/// connected to `stepped` of the default thumb, its keys change the value of the slider. If thumbs overlap, a click
/// that unselects a thumb lowers it below the others.
///
/// A thumb is 14 by 14 pixels unless the style sheet sets another size. Selectors: [styleTag="..."], `:checked` and
/// `:focus`. GUI thread only.
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
    /// Constructs a thumb at the slider's minimum. The slider owns it; without one, it paints nothing and ignores
    /// input.
    explicit ZSliderThumb(ZSlider* slider);
    ~ZSliderThumb() override;

    /// The accessible name, unless another one is set; by default the name given to `ZSlider::addThumb`, under which
    /// the slider continues to find the thumb.
    QString name() const { return currentName; }
    void setName(const QString& name);

    /// Tag for selectors of style sheets; by default the name given to `ZSlider::addThumb`.
    QString styleTag() const { return currentStyleTag; }
    void setStyleTag(const QString& tag);

    /// Whether the user can select the thumb; true by default.
    bool isSelectable() const { return selectable; }
    void setSelectable(bool on) { selectable = on; }

    /// Whether the user can drag the thumb; true by default.
    bool isDraggable() const { return draggable; }
    void setDraggable(bool on) { draggable = on; }

    /// Distance in pixels from the left or top edge of the thumb to the spot that points at the value; 7 by default.
    int pointOffset() const { return currentPointOffset; }
    void setPointOffset(int offset);

    /// Distance in pixels from the top edge of a horizontal slider, or the left edge of a vertical one; 0 by default.
    int parentMargin() const { return currentParentMargin; }
    void setParentMargin(int margin);

    /// Stacking order; 0 by default. The thumb of the highest order is on top, among equals the last one by name.
    int zOrder() const { return currentZOrder; }
    void setZOrder(int order);

    /// The value, clamped to the range of the slider and then to the limits. The upper limit wins over the lower one.
    int value() const { return currentValue; }
    void setValue(int value);

    /// Limits of the value; those of int by default. Setting one clamps the value.
    int lowerLimit() const { return lowerBound; }
    void setLowerLimit(int limit);
    int upperLimit() const { return upperBound; }
    void setUpperLimit(int limit);

    /// Whether a press on the groove moves this thumb if it is the selected or the default one; true by default.
    bool movesOnGrooveClick() const { return followsGroove; }
    void setMovesOnGrooveClick(bool on) { followsGroove = on; }

    /// Whether the wheel over the selected thumb emits `stepped`; true by default.
    bool isWheelStepping() const { return wheelStepping; }
    void setWheelStepping(bool on) { wheelStepping = on; }

    /// Whether arrow keys emit `stepped`; true by default.
    bool isKeyStepping() const { return keyStepping; }
    void setKeyStepping(bool on) { keyStepping = on; }

    QSize sizeHint() const override;

Q_SIGNALS:
    /// Emitted when the value changes, except when a new range of the slider clamps it.
    void valueChanged(int value);

    /// Emitted with the first mouse move of a drag.
    void dragStarted();

    /// Emitted at the end of a drag, also when the thumb is hidden or disabled during the drag.
    void dragFinished();

    /// Requests a move by units of 1/120 step; positive for Up, Right and the wheel turned away. The thumb does not
    /// move. Values of a vertical slider grow downwards, so its owner subtracts the steps to move the thumb up.
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
    QString key; ///< name under which the slider finds the thumb
    QString currentName;
    QString currentStyleTag;
    bool armed = false;    ///< pressed with the left button while draggable
    bool dragging = false; ///< whether the mouse moved since then
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
