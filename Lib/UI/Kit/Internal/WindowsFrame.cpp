#include <UI/Kit/Internal/WindowsFrame.h>

#include <UI/Kit/Internal/WindowActions.h>

#include <QEvent>
#include <QGuiApplication>
#include <QLibrary>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <QtMath>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QtPlatformHeaders/QWindowsWindowFunctions>
#endif

#include <shellapi.h>
#include <windowsx.h>

#include <utility>

namespace Zelkor::Vx::UI::Kit {

namespace {

constexpr UINT NO_CHANGE = SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOOWNERZORDER;
constexpr int AUTO_HIDE_THICKNESS = 2; // pixels at which the pointer brings back a hidden taskbar

void AddFrame(DWORD& style, const QWidget* window)
{
    const auto set = [&](DWORD flag, bool isSet) { style = isSet ? style | flag : style & ~flag; };
    set(WS_CAPTION | WS_SYSMENU, true);
    set(WS_THICKFRAME, ResizableDirections(window));
    set(WS_MAXIMIZEBOX, CanMaximize(window));
}

DWORD StyleOf(HWND window)
{
    return static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
}

LRESULT HitCode(WindowPart part)
{
    switch (part) {
    case WindowPart::Client:
        return HTCLIENT;
    case WindowPart::Caption:
        return HTCAPTION;
    case WindowPart::MaximizeButton:
        return HTMAXBUTTON;
    case WindowPart::Left:
        return HTLEFT;
    case WindowPart::TopLeft:
        return HTTOPLEFT;
    case WindowPart::Top:
        return HTTOP;
    case WindowPart::TopRight:
        return HTTOPRIGHT;
    case WindowPart::Right:
        return HTRIGHT;
    case WindowPart::BottomRight:
        return HTBOTTOMRIGHT;
    case WindowPart::Bottom:
        return HTBOTTOM;
    case WindowPart::BottomLeft:
        return HTBOTTOMLEFT;
    }
    return HTCLIENT;
}

bool HasHiddenTaskbar(const RECT& monitor, UINT edge)
{
    APPBARDATA data = {};
    data.cbSize = sizeof data;
    data.uEdge = edge;
    data.rc = monitor;
    constexpr DWORD GET_AUTO_HIDE_BAR_EX = 0xb;
    return SHAppBarMessage(GET_AUTO_HIDE_BAR_EX, &data) != 0;
}

// Windows makes a maximised window larger than the work area by its frame, which this one does not show.
void FitMaximized(RECT& window)
{
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    if (!GetMonitorInfoW(MonitorFromRect(&window, MONITOR_DEFAULTTONEAREST), &info))
        return;
    RECT area = info.rcWork;
    const RECT& monitor = info.rcMonitor;
    if (area.left == monitor.left && HasHiddenTaskbar(monitor, ABE_LEFT))
        area.left += AUTO_HIDE_THICKNESS;
    if (area.top == monitor.top && HasHiddenTaskbar(monitor, ABE_TOP))
        area.top += AUTO_HIDE_THICKNESS;
    if (area.right == monitor.right && HasHiddenTaskbar(monitor, ABE_RIGHT))
        area.right -= AUTO_HIDE_THICKNESS;
    if (area.bottom == monitor.bottom && HasHiddenTaskbar(monitor, ABE_BOTTOM))
        area.bottom -= AUTO_HIDE_THICKNESS;
    const RECT whole = window;
    IntersectRect(&window, &whole, &area);
}

void FitMaximized(WINDOWPOS& position)
{
    if (position.flags & (SWP_NOMOVE | SWP_NOSIZE))
        return;
    RECT rect = {position.x, position.y, position.x + position.cx, position.y + position.cy};
    FitMaximized(rect);
    position.x = rect.left;
    position.y = rect.top;
    position.cx = rect.right - rect.left;
    position.cy = rect.bottom - rect.top;
}

// Qt reports a frameless maximised window as full screen if it covers the screen, unless full-screen windows have a
// border.
void SetReportedAsMaximized([[maybe_unused]] QWindow* window, [[maybe_unused]] bool isMaximized)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QWindowsWindowFunctions::setHasBorderInFullScreen(window, isMaximized);
#endif
}

// Versions of Windows without these functions or attributes show the window without.
void ShowShadowAndRoundCorners(HWND window)
{
    struct Margins
    {
        int left, right, top, bottom;
    };
    using ExtendFrame = HRESULT(WINAPI*)(HWND, const Margins*);
    using SetAttribute = HRESULT(WINAPI*)(HWND, DWORD, const void*, DWORD);
    static const QString LIBRARY = QStringLiteral("dwmapi");
    static const auto extendFrame =
        reinterpret_cast<ExtendFrame>(QLibrary::resolve(LIBRARY, "DwmExtendFrameIntoClientArea"));
    static const auto setAttribute =
        reinterpret_cast<SetAttribute>(QLibrary::resolve(LIBRARY, "DwmSetWindowAttribute"));
    // A window without any frame has no shadow. The pixel is covered by the client area.
    constexpr Margins TOP_ROW = {0, 0, 1, 0};
    if (extendFrame)
        extendFrame(window, &TOP_ROW);
    constexpr DWORD CORNER_PREFERENCE = 33;
    constexpr DWORD ROUND = 2;
    if (setAttribute)
        setAttribute(window, CORNER_PREFERENCE, &ROUND, sizeof ROUND);
}

} // namespace

WindowsFrame::WindowsFrame(QWidget* window, PartAtPoint partAtPoint)
    : QObject(window), window(window), partAtPoint(std::move(partAtPoint))
{
    if (QGuiApplication::platformName() != QLatin1String("windows"))
        return;
    window->installEventFilter(this);
    QCoreApplication::instance()->installNativeEventFilter(this);
    attach();
}

WindowsFrame::~WindowsFrame()
{
    QCoreApplication::instance()->removeNativeEventFilter(this);
    if (isActive())
        SetWindowLongPtrW(handle, GWL_STYLE, StyleOf(handle) & ~DWORD(WS_CAPTION | WS_THICKFRAME));
}

bool WindowsFrame::eventFilter(QObject* watched, QEvent* event)
{
    // New flags may come without a new native window.
    if (watched == window && (event->type() == QEvent::WinIdChange || event->type() == QEvent::Show))
        attach();
    return QObject::eventFilter(watched, event);
}

void WindowsFrame::attach()
{
    handle = window->isWindow() ? reinterpret_cast<HWND>(window->internalWinId()) : nullptr;
    isOverButton = false;
    if (!isActive())
        return;
    // Qt computes frame margins from the style when the screen changes.
    connect(window->windowHandle(), &QWindow::screenChanged, this, &WindowsFrame::recalculateFrame,
            Qt::UniqueConnection);
    updateStyle();
    recalculateFrame();
    ShowShadowAndRoundCorners(handle);
}

void WindowsFrame::updateStyle()
{
    if (window->isFullScreen())
        return;
    DWORD style = StyleOf(handle);
    AddFrame(style, window);
    if (style != StyleOf(handle)) {
        SetWindowLongPtrW(handle, GWL_STYLE, static_cast<LONG_PTR>(style));
        recalculateFrame();
    }
}

// Makes Windows apply the style and send WM_NCCALCSIZE, from which Qt takes its frame margins.
void WindowsFrame::recalculateFrame()
{
    SetWindowPos(handle, nullptr, 0, 0, 0, 0, NO_CHANGE | SWP_FRAMECHANGED);
}

bool WindowsFrame::isActive() const
{
    return handle && window->windowFlags().testFlag(Qt::FramelessWindowHint);
}

bool WindowsFrame::nativeEventFilter(const QByteArray&, void* message, Result* result)
{
    const MSG& received = *static_cast<MSG*>(message);
    if (!isActive())
        return false;
    std::optional<LRESULT> answer;
    if (received.hwnd == handle) {
        answer = handleFrame(received);
        if (!answer)
            answer = handleMouse(received);
    } else if (received.message == WM_NCHITTEST && IsChild(handle, received.hwnd) &&
               partAt(received.lParam) != WindowPart::Client) {
        answer = HTTRANSPARENT; // leaves the point to the window
    }
    if (answer && result) // null for messages from the queue
        *result = static_cast<Result>(*answer);
    return answer.has_value();
}

std::optional<LRESULT> WindowsFrame::handleFrame(const MSG& message)
{
    switch (message.message) {
    case WM_STYLECHANGING: // by Qt
        if (static_cast<int>(message.wParam) == GWL_STYLE && !window->isFullScreen())
            AddFrame(reinterpret_cast<STYLESTRUCT*>(message.lParam)->styleNew, window);
        break;
    case WM_NCCALCSIZE:
        // A client area as large as the window. With either wParam, lParam begins with the rectangle of the window.
        if (IsZoomed(handle))
            FitMaximized(*reinterpret_cast<RECT*>(message.lParam));
        return 0;
    case WM_WINDOWPOSCHANGING:
        // The window must be as small as its client area: Qt subtracts the difference from the normal geometry, too.
        if (IsZoomed(handle))
            FitMaximized(*reinterpret_cast<WINDOWPOS*>(message.lParam));
        break;
    case WM_SIZE:
        SetReportedAsMaximized(window->windowHandle(), message.wParam == SIZE_MAXIMIZED);
        break;
    case WM_GETMINMAXINFO:
        // Replaces the system's minimum for windows with a caption; Qt sets that of the window.
        reinterpret_cast<MINMAXINFO*>(message.lParam)->ptMinTrackSize = {1, 1};
        break;
    case WM_NCACTIVATE:
        // -1 suppresses the caption that Windows paints without desktop composition.
        return DefWindowProcW(handle, message.message, message.wParam, -1);
    case WM_DPICHANGED:
        QTimer::singleShot(0, this, &WindowsFrame::recalculateFrame);
        break;
    case WM_DWMCOMPOSITIONCHANGED:
        ShowShadowAndRoundCorners(handle);
        break;
    default:
        break;
    }
    return std::nullopt;
}

std::optional<LRESULT> WindowsFrame::handleMouse(const MSG& message)
{
    switch (message.message) {
    case WM_NCHITTEST:
        updateStyle(); // the size limits of a widget change without an event or signal
        return HitCode(partAt(message.lParam));
    case WM_NCMOUSEMOVE:
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONUP:
    case WM_NCLBUTTONDBLCLK:
        if (message.wParam == HTMAXBUTTON) {
            forwardToClient(message);
            return 0;
        }
        leaveButton();
        break;
    case WM_MOUSEMOVE:
    case WM_NCMOUSELEAVE:
        leaveButton();
        break;
    case WM_MOUSELEAVE:
        if (isOverButton)
            return 0; // left the client area for the button
        break;
    case WM_NCRBUTTONDOWN:
        // By default, Windows waits for the release, and shows no menu above the client area.
        if (message.wParam == HTCAPTION)
            return 0;
        break;
    case WM_NCRBUTTONUP:
        if (message.wParam == HTCAPTION) {
            showMenu(message.lParam);
            return 0;
        }
        break;
    default:
        break;
    }
    return std::nullopt;
}

WindowPart WindowsFrame::partAt(LPARAM position) const
{
    // Maps the rectangle instead of the point, since client coordinates may be mirrored.
    RECT client;
    GetClientRect(handle, &client);
    MapWindowPoints(handle, nullptr, reinterpret_cast<POINT*>(&client), 2);
    const QPointF point(GET_X_LPARAM(position) - client.left, GET_Y_LPARAM(position) - client.top);
    const QPointF logical = point / window->devicePixelRatioF();
    return partAtPoint(QPoint(qFloor(logical.x()), qFloor(logical.y())));
}

// Turns a message from the maximise button, which is not client area, into one of the client area, for Qt's button.
void WindowsFrame::forwardToClient(const MSG& message)
{
    POINT point = {GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)};
    ScreenToClient(handle, &point);
    const bool isPress = message.message == WM_NCLBUTTONDOWN || message.message == WM_NCLBUTTONDBLCLK;
    isOverButton = true;
    SendMessageW(handle, message.message + (WM_MOUSEMOVE - WM_NCMOUSEMOVE), isPress ? MK_LBUTTON : 0,
                 MAKELPARAM(point.x, point.y));
    TRACKMOUSEEVENT leave = {sizeof leave, TME_LEAVE | TME_NONCLIENT, handle, 0};
    TrackMouseEvent(&leave);
}

// While the button is pressed, Qt captures the mouse and needs no help.
void WindowsFrame::leaveButton()
{
    if (!isOverButton || GetCapture() == handle)
        return;
    isOverButton = false;
    SendMessageW(handle, WM_MOUSELEAVE, 0, 0);
}

void WindowsFrame::showMenu(LPARAM position) const
{
    const HWND owner = handle; // this may be deleted while the menu is open
    const HMENU menu = GetSystemMenu(owner, FALSE);
    const DWORD style = StyleOf(owner);
    const bool isMaximized = IsZoomed(owner);
    const auto enable = [&](UINT command, bool isEnabled) {
        EnableMenuItem(menu, command, MF_BYCOMMAND | (isEnabled ? MF_ENABLED : MF_GRAYED));
    };
    enable(SC_RESTORE, isMaximized);
    enable(SC_MOVE, !isMaximized);
    enable(SC_SIZE, !isMaximized && style & WS_THICKFRAME);
    enable(SC_MINIMIZE, style & WS_MINIMIZEBOX);
    enable(SC_MAXIMIZE, !isMaximized && style & WS_MAXIMIZEBOX);
    enable(SC_CLOSE, window->windowFlags().testFlag(Qt::WindowCloseButtonHint));
    SetMenuDefaultItem(menu, SC_CLOSE, FALSE);
    const UINT side = GetSystemMetrics(SM_MENUDROPALIGNMENT) ? TPM_RIGHTALIGN : TPM_LEFTALIGN;
    const BOOL command = TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON | side, GET_X_LPARAM(position),
                                        GET_Y_LPARAM(position), 0, owner, nullptr);
    if (command)
        PostMessageW(owner, WM_SYSCOMMAND, static_cast<WPARAM>(command), 0);
}

} // namespace Zelkor::Vx::UI::Kit
