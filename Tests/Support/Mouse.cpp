#include <Support/Mouse.h>

#include <Support/EventSpy.h>

#include <QMouseEvent>
#include <QProcess>
#include <QtTest>

#include <functional>
#include <iterator>

#if defined(Q_OS_WIN)
#include <QtCore/qt_windows.h>
#endif

namespace Support {

namespace {

#if !defined(Q_OS_WIN)
void RunTool(const QStringList& arguments)
{
    QProcess tool;
    tool.start(QStringLiteral("xdotool"), arguments);
    // Processes events, since the window under the pointer may belong to this process.
    while (!tool.waitForFinished(20) && tool.state() != QProcess::NotRunning)
        QCoreApplication::processEvents();
    QCOMPARE(tool.exitStatus(), QProcess::NormalExit);
    QVERIFY2(tool.exitCode() == 0, tool.readAllStandardError());
}
#endif

void SetPressed(int button, bool isPressed)
{
#if defined(Q_OS_WIN)
    const DWORD press = button == 1 ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN;
    const DWORD release = button == 1 ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP;
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = isPressed ? press : release;
    QCOMPARE(SendInput(1, &input, sizeof input), 1u);
#else
    RunTool({isPressed ? "mousedown" : "mouseup", QString::number(button)});
#endif
}

QPoint GlobalPosition(const QMouseEvent& event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event.globalPosition().toPoint();
#else
    return event.globalPos();
#endif
}

// Records the position of the last mouse move event in this process.
struct PointerWatch
{
    QPoint seen;
    EventSpy watch{qApp, [this](QEvent::Type type, QEvent* event) {
                       if (type == QEvent::MouseMove)
                           seen = GlobalPosition(*static_cast<QMouseEvent*>(event));
                   }};
};

} // namespace

void MovePointer(const QPoint& global)
{
#if defined(Q_OS_WIN)
    QVERIFY(SetCursorPos(global.x(), global.y()));
#else
    RunTool({"mousemove", QString::number(global.x()), QString::number(global.y())});
#endif
}

void Click(const QPoint& global)
{
    MovePointer(global);
    SetPressed(1, true);
    SetPressed(1, false);
    QCoreApplication::processEvents();
}

#if defined(Q_OS_WIN)

// Windows moves a window in a modal loop. Timers fire in that loop, but processing events there would take the mouse
// events away from it.
bool Drag(const QPoint& global, const QPoint& way, int button)
{
    const QPoint first = global + QPoint(1, 0);
    PointerWatch pointer;
    MovePointer(global);
    SetPressed(button, true);
    const std::function<void()> steps[] = {[&] { MovePointer(first); }, [&] { MovePointer(first + way); },
                                           [&] { SetPressed(button, false); }};
    size_t next = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (next < std::size(steps))
            steps[next++]();
    });
    timer.start(20);
    return QTest::qWaitFor([&] { return next == std::size(steps); }) && pointer.seen != first + way;
}

#else

bool Drag(const QPoint& global, const QPoint& way, int button)
{
    constexpr int FIRST_STEPS = 10;
    constexpr int LONG_MS = 5000;
    constexpr int ENOUGH_MS = 500;
    PointerWatch pointer;
    MovePointer(global);
    SetPressed(button, true);
    // The window manager grabs the pointer after the first motion, possibly with a delay.
    bool taken = false;
    for (int step = 1; step <= FIRST_STEPS && !taken; ++step) {
        const QPoint next = global + QPoint(step, 0);
        MovePointer(next);
        taken = !QTest::qWaitFor([&] { return pointer.seen == next; }, step == 1 ? LONG_MS : ENOUGH_MS);
    }
    MovePointer(global + QPoint(1, 0) + way);
    SetPressed(button, false);
    return taken;
}

#endif

} // namespace Support
