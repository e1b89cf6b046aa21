#include <Support/Mouse.h>

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

} // namespace Support
