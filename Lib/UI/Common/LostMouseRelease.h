#pragma once

#include <QObject>

class QPoint;
class QWidget;

namespace Zelkor::Vx::UI::Common {

/// Sends the mouse release that a window does not receive when the window system moves or resizes it interactively.
///
/// Without the release, Qt treats the pressed widget as mouse grabber until the next click, and other widgets receive
/// no enter and leave events. It is sent when the pointer comes back without a pressed button, to any window of the
/// application.
class LostMouseRelease : public QObject
{
    Q_OBJECT

public:
    /// Watches a window until it is deleted. Further calls for the same window have no effect. GUI thread only.
    static void Watch(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit LostMouseRelease(QWidget* window);

    void Forget();
    void Send(const QPoint& global);

    QWidget* const window;                  ///< the parent
    Qt::MouseButton pressed = Qt::NoButton; ///< the button whose release is missing
};

} // namespace Zelkor::Vx::UI::Common
