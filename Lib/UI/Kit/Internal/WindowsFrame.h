#pragma once

#include <UI/Kit/Internal/WindowPart.h>

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QtCore/qt_windows.h>

#include <functional>
#include <optional>

class QWidget;

namespace Zelkor::Vx::UI::Kit {

/// Gives a frameless window what Windows offers framed ones: snapping, window menu, animations, shadow and rounded
/// corners.
///
/// The window gets the native style of a framed one, and a client area that covers it. Windows asks for the part under
/// the pointer, and moves, resizes, maximises and restores the window. Without effect while the window has no
/// `Qt::FramelessWindowHint` or is inside another one, and on platforms other than "windows". GUI thread only.
class WindowsFrame : public QObject, public QAbstractNativeEventFilter
{
public:
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    using Result = qintptr;
#else
    using Result = long;
#endif
    using PartAtPoint = std::function<WindowPart(const QPoint&)>;

    /// The window owns the frame. `partAtPoint` takes logical coordinates of the window and is called for each mouse
    /// move.
    WindowsFrame(QWidget* window, PartAtPoint partAtPoint);
    ~WindowsFrame() override;

    bool nativeEventFilter(const QByteArray& eventType, void* message, Result* result) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void attach();
    void updateStyle();
    void recalculateFrame();
    bool isActive() const;
    std::optional<LRESULT> handleFrame(const MSG& message);
    std::optional<LRESULT> handleMouse(const MSG& message);
    WindowPart partAt(LPARAM position) const;
    void forwardToClient(const MSG& message);
    void leaveButton();
    void showMenu(LPARAM position) const;

    QWidget* const window;
    const PartAtPoint partAtPoint;
    HWND handle = nullptr;     ///< null while the window is not a native top-level one
    bool isOverButton = false; ///< Qt has entered the maximise button
};

} // namespace Zelkor::Vx::UI::Kit
