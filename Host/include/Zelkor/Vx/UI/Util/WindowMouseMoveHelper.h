#pragma once

#include <Zelkor/HostExport.h>

#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointer>

class QMouseEvent;
class QWidget;

namespace Zelkor::Vx::UI::Util {

/// Moves a window with the left mouse button on its handles.
///
/// On the first motion the window system takes over where it can move windows itself; elsewhere the helper moves the
/// window by the distance the mouse has gone. A second button or a double press ends the drag; a window that is
/// maximised or fills the screen stays where it is. Handles get their presses and releases as ever, and no motion
/// while the window is dragged. The helper is a child of the window and dies with it; handles may die before.
class VX_HOST_EXPORT WindowMouseMoveHelper : public QObject
{
    Q_OBJECT

public:
    /// Null handles are passed over. A null window makes a helper without effect, which the caller owns.
    WindowMouseMoveHelper(QWidget* window, const QList<QWidget*>& handles);
    ~WindowMouseMoveHelper() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Drag { None, Pressed, BySystem, ByHelper };

    void Press(const QMouseEvent& event);
    bool Move(const QMouseEvent& event);
    Drag StartDrag();

    QPointer<QWidget> window;
    QPoint pressPosition; ///< global, where the button went down
    QPoint windowOrigin;  ///< where the window was then, as `QWidget::pos` has it
    Drag drag = Drag::None;
};

} // namespace Zelkor::Vx::UI::Util
