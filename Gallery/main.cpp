#include "Application.h"
#include "Options.h"

#include <Examples/Support/HighDpi.h>
#include <Examples/Support/Offscreen.h>
#include <Examples/Support/PictureOptions.h>

#include <Gallery/Browser/PageList.h>

#include <QApplication>

#include <glog/logging.h>

#include <cstdio>

#if defined(Q_OS_WIN)
#include <QtCore/qt_windows.h>
#endif

using namespace Zelkor::Gallery;
using Zelkor::Examples::LARGEST_SIDE;

namespace {

QStringList ArgumentsOf(int argc, char* argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

// On Windows a GUI program has no console. Attaches to that of the parent process, if any.
void FindConsole()
{
#if defined(Q_OS_WIN)
    if (!GetStdHandle(STD_OUTPUT_HANDLE) && AttachConsole(ATTACH_PARENT_PROCESS)) {
        std::freopen("CONOUT$", "w", stdout);
        std::freopen("CONOUT$", "w", stderr);
    }
#endif
}

// Only for platforms with a display server.
bool IsWithoutDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#else
    return false;
#endif
}

void GoWithoutDisplay(Options& options)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (options.TakesPictures()) {
        PrintError("there is no display; running without a window");
        return;
    }
    options.shot = options.fallbackShot;
    PrintError(QString("there is no display; running without a window, the picture goes to '%1'").arg(options.shot));
}

} // namespace

int main(int argc, char* argv[])
{
    FindConsole();
    google::InitGoogleLogging(argv[0]);
    FLAGS_logtostderr = true;
    auto answer = ReadOptions(ArgumentsOf(argc, argv));
    if (const auto* ending = std::get_if<Answer>(&answer)) {
        if (ending->exitCode == 0)
            std::puts(qPrintable(ending->text));
        else
            PrintError(ending->text);
        return ending->exitCode;
    }

    auto options = std::get<Options>(answer);
    if (options.list) {
        std::puts(qPrintable(PageNames().join('\n')));
        return EXIT_SUCCESS;
    }
    if (IsWithoutDisplay())
        GoWithoutDisplay(options);
    if (options.scale != 1)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
    Zelkor::Examples::EnableHighDpiScaling();
    // QApplication would remove our option --style, because Qt has one of that name.
    int programOnly = 1;
    QApplication qtApplication(programOnly, argv);
    QApplication::setApplicationName("VxGallery");
    Zelkor::Examples::AdaptToOffscreen();
    // The device pixel ratio also includes the scale of the screen and the environment.
    const QSize pixels = options.size * qtApplication.devicePixelRatio();
    if (qMax(pixels.width(), pixels.height()) > LARGEST_SIDE) {
        PrintError(QString("--size %1x%2 is %3x%4 pixels at this scale; sides may have up to %5")
                       .arg(options.size.width())
                       .arg(options.size.height())
                       .arg(pixels.width())
                       .arg(pixels.height())
                       .arg(LARGEST_SIDE));
        return EXIT_BAD_USE;
    }
    return Application(options).Run();
}
