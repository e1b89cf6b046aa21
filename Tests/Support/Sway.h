#pragma once

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QWidget>
#include <QtTest>

/// Drives the compositor of tools/with-wayland. Positions are in its global coordinates, in logical pixels.
namespace Support::Sway {

inline QByteArray Run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    // Processes events, since the compositor may wait for a window of this process.
    while (!process.waitForFinished(10) && process.state() != QProcess::NotRunning)
        QCoreApplication::processEvents();
    const bool succeeded = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (!succeeded)
        QTest::qFail(process.readAllStandardError() + program.toLocal8Bit(), __FILE__, __LINE__);
    return process.readAllStandardOutput();
}

inline void Command(const QString& command)
{
    Run(QStringLiteral("swaymsg"), {"-q", "--", command});
}

inline void MovePointer(const QPoint& position)
{
    Command(QStringLiteral("seat - cursor set %1 %2").arg(position.x()).arg(position.y()));
}

/// Moves the pointer like a mouse, also while the compositor moves or resizes a window.
inline void MovePointerBy(const QPoint& way)
{
    QFile pipe(qEnvironmentVariable("VX_POINTER"));
    QVERIFY(pipe.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    pipe.write(QStringLiteral("%1 %2\n").arg(way.x()).arg(way.y()).toLatin1());
}

inline void SetPressed(bool isPressed, int button = 1)
{
    Command(QStringLiteral("seat - cursor %1 button%2").arg(isPressed ? "press" : "release").arg(button));
}

inline void Click(const QPoint& position)
{
    MovePointer(position);
    SetPressed(true);
    SetPressed(false);
}

/// Sends key presses; names are those of xkbcommon.
inline void Key(const QString& name)
{
    Run(QStringLiteral("wtype"), {"-k", name});
}

/// Moves the top left corner of a shown window.
inline void MoveWindow(const QWidget& window, const QPoint& position)
{
    Command(QStringLiteral("[title=\"^%1$\"] move absolute position %2 %3")
                .arg(window.windowTitle())
                .arg(position.x())
                .arg(position.y()));
}

/// Returns the rectangle that a colour fills in a part of the screen. Colours differ slightly where an output is
/// scaled.
inline QRect Find(const QColor& color, const QRect& area)
{
    constexpr int TOLERANCE = 40;
    const QRgb wanted = color.rgb();
    const QString place =
        QStringLiteral("%1,%2 %3x%4").arg(area.x()).arg(area.y()).arg(area.width()).arg(area.height());
    const QImage picture =
        QImage::fromData(Run(QStringLiteral("grim"), {"-s", "1", "-t", "ppm", "-g", place, "-"}), "PPM")
            .convertToFormat(QImage::Format_RGB32);
    QRect found;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            if (qAbs(qRed(line[x]) - qRed(wanted)) < TOLERANCE && qAbs(qGreen(line[x]) - qGreen(wanted)) < TOLERANCE &&
                qAbs(qBlue(line[x]) - qBlue(wanted)) < TOLERANCE)
                found |= QRect(x, y, 1, 1);
        }
    }
    return found.isEmpty() ? found : found.translated(area.topLeft());
}

} // namespace Support::Sway
