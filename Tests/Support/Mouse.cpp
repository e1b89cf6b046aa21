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

#if defined(Q_OS_WIN)

void Send(DWORD what)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = what;
    QCOMPARE(SendInput(1, &input, sizeof input), 1u);
}

void Press(int button)
{
    Send(button == 1 ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN);
}

void Release(int button)
{
    Send(button == 1 ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP);
}

#else

void RunTool(const QStringList& arguments)
{
    QProcess tool;
    tool.start(QStringLiteral("xdotool"), arguments);
    // The window under the pointer may be our own, and the tool waits for nothing that it does.
    while (!tool.waitForFinished(20) && tool.state() != QProcess::NotRunning)
        QCoreApplication::processEvents();
    QVERIFY2(tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0, tool.readAllStandardError());
}

void Press(int button)
{
    RunTool({"mousedown", QString::number(button)});
}

void Release(int button)
{
    RunTool({"mouseup", QString::number(button)});
}

#endif

// Where the pointer was when one of our windows last heard of it.
struct PointerWatch
{
    QPoint seen;
    EventSpy watch{qApp, [this](QEvent::Type type, QEvent* event) {
                       if (type == QEvent::MouseMove)
                           seen = static_cast<QMouseEvent*>(event)->globalPos();
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
    Press(1);
    Release(1);
    QCoreApplication::processEvents();
}

#if defined(Q_OS_WIN)

// A move by the window system is a loop of its own inside the handling of an event. Timers go on in it, but whoever
// processes events there takes the pointer's away from it.
bool Drag(const QPoint& global, const QPoint& way, int button)
{
    const QPoint first = global + QPoint(1, 0);
    PointerWatch pointer;
    MovePointer(global);
    Press(button);
    const std::function<void()> steps[] = {[&] { MovePointer(first); }, [&] { MovePointer(first + way); },
                                           [&] { Release(button); }};
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
    Press(button);
    // The window system takes the pointer after the first motion, but maybe not at once.
    bool taken = false;
    for (int step = 1; step <= FIRST_STEPS && !taken; ++step) {
        const QPoint next = global + QPoint(step, 0);
        MovePointer(next);
        taken = !QTest::qWaitFor([&] { return pointer.seen == next; }, step == 1 ? LONG_MS : ENOUGH_MS);
    }
    MovePointer(global + QPoint(1, 0) + way);
    Release(button);
    return taken;
}

#endif

} // namespace Support
