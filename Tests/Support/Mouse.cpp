#include <Support/Mouse.h>

#include <Support/EventWatch.h>

#include <QMouseEvent>
#include <QProcess>
#include <QtTest>

namespace Support {

namespace {

void RunTool(const QStringList& arguments)
{
    QProcess tool;
    tool.start(QStringLiteral("xdotool"), arguments);
    // The window under the pointer may be our own, and the tool waits for nothing that it does.
    while (!tool.waitForFinished(20) && tool.state() != QProcess::NotRunning)
        QCoreApplication::processEvents();
    QVERIFY2(tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0, tool.readAllStandardError());
}

} // namespace

void MovePointer(const QPoint& global)
{
    RunTool({"mousemove", QString::number(global.x()), QString::number(global.y())});
}

void Click(const QPoint& global)
{
    MovePointer(global);
    RunTool({"click", "1"});
}

bool Drag(const QPoint& global, const QPoint& way, int button)
{
    constexpr int FIRST_STEPS = 10;
    constexpr int LONG_MS = 5000;
    constexpr int ENOUGH_MS = 500;
    QPoint seen;
    const EventWatch watch(qApp, [&](QEvent::Type type, QEvent* event) {
        if (type == QEvent::MouseMove)
            seen = static_cast<QMouseEvent*>(event)->globalPos();
    });
    MovePointer(global);
    RunTool({"mousedown", QString::number(button)});
    // The window system takes the pointer after the first motion, but maybe not at once.
    bool taken = false;
    for (int step = 1; step <= FIRST_STEPS && !taken; ++step) {
        const QPoint next = global + QPoint(step, 0);
        MovePointer(next);
        taken = !QTest::qWaitFor([&] { return seen == next; }, step == 1 ? LONG_MS : ENOUGH_MS);
    }
    MovePointer(global + QPoint(1, 0) + way);
    RunTool({"mouseup", QString::number(button)});
    return taken;
}

} // namespace Support
