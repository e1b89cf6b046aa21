#pragma once

#include <Zelkor/HostExport.h>

#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointer>

class QMouseEvent;
class QWidget;

namespace Zelkor::Vx::UI::Util {

/// Moves a window when its handles are dragged with the left mouse button.
///
/// On the first mouse move the drag is handed to the window system, or, where that is not supported, the helper moves
/// the window. A second button or a double click ends the drag. Maximised and full-screen windows are not moved.
/// Handles receive mouse presses and releases as usual, but no mouse moves during a drag. The helper is a child of the
/// window and is deleted with it. Handles may be deleted earlier.
class VX_HOST_EXPORT WindowMouseMoveHelper : public QObject
{
    Q_OBJECT

public:
    /// Ignores null handles. With a null window the helper has no effect and is owned by the caller.
    WindowMouseMoveHelper(QWidget* window, const QList<QWidget*>& handles);
    ~WindowMouseMoveHelper() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Drag { None, Pressed, BySystem, ByHelper };

    void Press(const QMouseEvent& event);
    bool Move(const QWidget& handle, const QMouseEvent& event);
    Drag StartDrag(const QWidget& handle);

    QPointer<QWidget> window;
    QPoint pressPosition; ///< of the last press, in global coordinates
    QPoint windowOrigin;  ///< `QWidget::pos` of the window at the last press
    Drag drag = Drag::None;
};

} // namespace Zelkor::Vx::UI::Util
