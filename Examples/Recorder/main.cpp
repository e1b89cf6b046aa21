#include "Preferences.h"
#include "RecorderModel.h"
#include "RecorderWindow.h"
#include "TrimWindow.h"

#include <Examples/Support/Appearance.h>
#include <Examples/Support/FramelessWindow.h>
#include <Examples/Support/HighDpi.h>
#include <Examples/Support/Offscreen.h>
#include <Examples/Support/PictureOptions.h>
#include <Examples/Support/ScreenFit.h>
#include <UI/Kit/ZRuntimeStylesheetEditor.h>
#include <UI/Kit/ZStyleSheet.h>

#include <Zelkor/StandIn/DeviceList.h>

#include <QAction>
#include <QApplication>
#include <QCommandLineParser>
#include <QSettings>
#include <QTimer>

#include <cstdio>
#include <memory>

using namespace Zelkor::Recorder;
using Zelkor::Examples::Appearance;
using Zelkor::StandIn::DeviceList;

namespace {

constexpr int HINT_DELAY_MS = 800; ///< until the window system has positioned the window
const QString HINT_SHOWN = QStringLiteral("firstHintShown");

void PrintError(const QString& text)
{
    std::fprintf(stderr, "VxRecorder: %s\n", qPrintable(text));
}

void Declare(QCommandLineParser& parser)
{
    parser.setApplicationDescription("A small screen recorder made of VxUiWidgets. It shows a live picture; nothing is "
                                     "recorded.");
    parser.addOptions({
        {{"h", "help"}, "Shows this help."},
        {"style", "Uses the style sheet system, dark, light, high-contrast, or a file.", "FILE", "system"},
        {"language", "Uses the translations of a language, for instance de.", "L"},
        {"rtl", "Lays out from right to left."},
        {"trimmer", "Opens the trimmer instead of the recorder."},
        {"shot", "Writes a picture of the window as PNG and exits.", "FILE"},
        {"size", "Width and height of the window in pixels, for instance 900x640.", "WxH"},
        {"after", "Time before the picture, in milliseconds.", "MS", "800"},
    });
}

// The hint is shown once for each user.
void GreetOnce(RecorderWindow& window)
{
    QTimer::singleShot(HINT_DELAY_MS, &window, [&window] {
        QSettings settings("VxUiWidgets", QApplication::applicationName());
        if (!window.isVisible() || settings.value(HINT_SHOWN).toBool())
            return;
        settings.setValue(HINT_SHOWN, true);
        window.ShowFirstHint();
    });
}

void Raise(QWidget& window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

void OpenStyleEditor(std::unique_ptr<ZRuntimeStylesheetEditor>& editor)
{
    if (!editor) {
        editor = std::make_unique<ZRuntimeStylesheetEditor>();
        editor->setAttribute(Qt::WA_QuitOnClose, false);
        Zelkor::Examples::ReplaceFrame(editor.get());
    }
    Raise(*editor);
}

// Returns false for a style sheet that cannot be read. Falls back to English without translations.
bool SetAppearance(const QCommandLineParser& parser, Appearance& appearance)
{
    QString error;
    if (!appearance.SetStyle(parser.value("style"), &error)) {
        PrintError(error);
        return false;
    }
    const QString language = parser.value("language");
    if (!language.isEmpty() && !appearance.SetLanguage(language))
        PrintError(QString("there are no translations for '%1'; continuing in English").arg(language));
    if (parser.isSet("rtl"))
        QApplication::setLayoutDirection(Qt::RightToLeft);
    QApplication::setWindowIcon(ZStyleSheet::icon("app"));
    return true;
}

// Returns the exit code of the program.
int WritePicture(QWidget& window, const QString& file)
{
    if (window.grab().save(file, "PNG"))
        return EXIT_SUCCESS;
    PrintError(QString("cannot write the picture '%1'").arg(file));
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char* argv[])
{
    Zelkor::Examples::EnableHighDpiScaling();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    // QApplication would remove our option --style, because Qt has one of that name.
    int programOnly = 1;
    QApplication application(programOnly, argv);
    QApplication::setApplicationName("VxRecorder");
    Zelkor::Examples::AdaptToOffscreen();
    QCommandLineParser parser;
    Declare(parser);
    if (!parser.parse(arguments) || !parser.positionalArguments().isEmpty()) {
        PrintError(parser.errorText().isEmpty() ? "takes options only" : parser.errorText());
        return 2;
    }
    if (parser.isSet("help")) {
        std::puts(qPrintable(parser.helpText().trimmed()));
        return EXIT_SUCCESS;
    }
    QString error;
    const QSize size = Zelkor::Examples::ParseSize(parser, &error);
    const int delay = Zelkor::Examples::ParseDelay(parser, &error);
    if (!error.isEmpty()) {
        PrintError(error);
        return 2;
    }

    Appearance appearance("VxRecorder");
    if (!SetAppearance(parser, appearance))
        return 2;

    Preferences preferences;
    DeviceList devices;
    RecorderModel model;
    QObject::connect(&devices, &DeviceList::Changed, &model, [&] { model.SetDevices(devices.GetDevices()); });
    model.SetDevices(devices.GetDevices());
    RecorderWindow recorder(&model, &preferences, &appearance);
    recorder.resize(recorder.sizeHint());
    TrimWindow trimmer;
    trimmer.setAttribute(Qt::WA_QuitOnClose, false);
    std::unique_ptr<ZRuntimeStylesheetEditor> styleEditor;
    QAction editStyle;
    editStyle.setShortcut(Qt::Key_F12);
    editStyle.setShortcutContext(Qt::ApplicationShortcut);
    recorder.addAction(&editStyle);
    QObject::connect(&editStyle, &QAction::triggered, &recorder, [&] { OpenStyleEditor(styleEditor); });
    QObject::connect(&recorder, &RecorderWindow::StyleEditorRequested, &editStyle, &QAction::trigger);
    QObject::connect(&recorder, &RecorderWindow::TrimmerRequested, &trimmer, [&] { Raise(trimmer); });

    QWidget* window = &recorder;
    if (parser.isSet("trimmer")) {
        window = &trimmer;
        window->setAttribute(Qt::WA_QuitOnClose);
    }
    if (size.isValid())
        window->resize(size);
    Zelkor::Examples::FitToScreen(window);
    window->show();
    if (!parser.isSet("shot")) {
        GreetOnce(recorder);
        return QApplication::exec();
    }
    QTimer::singleShot(delay, window, [&] { QApplication::exit(WritePicture(*window, parser.value("shot"))); });
    return QApplication::exec();
}
