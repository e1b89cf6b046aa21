#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QVector>

class QWidget;

namespace Zelkor::Gallery {

/// Forces states of a widget, so that it paints what a style sheet says for them. A state holds until it is switched
/// off, whatever the mouse does. GUI thread.
///
/// HOVER and PRESSED act like the mouse at the middle of the widget, or at its handle, thumb or tab: the widget there
/// and its ancestors up to the target have the state. FOCUS leaves the focus where it is.
class ForcedStates : public QObject
{
    Q_OBJECT

public:
    enum State { HOVER, PRESSED, FOCUS, CHECKED, DISABLED };
    Q_ENUM(State)

    /// The target may be deleted at any time.
    explicit ForcedStates(QWidget* target, QObject* parent = nullptr);

    /// Returns whether the target has the state and can enter it. A state that is forced is applicable.
    bool IsApplicable(State state) const;

    bool IsForced(State state) const { return forced & (1 << state); }

    /// Enters or leaves a state. Ignores states that are not applicable.
    void Force(State state, bool on);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* PartUnderPoint() const;
    void ForceHover(bool on);
    void ForcePressed(bool on);
    void MoveMouse(bool toWidget);
    void MoveFocusProxy();

    QPointer<QWidget> target;
    QPointer<QWidget> ownProxy;         ///< focus proxy of the target before FOCUS
    QPoint point;                       ///< of the mouse, in coordinates of the target
    QVector<QPointer<QWidget>> hovered; ///< from the innermost widget to the target
    QPointer<QWidget> pressed;
    int forced = 0; ///< a bit for each state
};

} // namespace Zelkor::Gallery
