#include "Application.h"
#include "Catalogue.h"
#include "GalleryWindow.h"
#include "RecorderWindow.h"
#include "Screenshot.h"
#include "Scrolled.h"

#include <UI/Kit/ZRuntimeStylesheetEditor.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTimer>

#include <cstdio>

namespace Zelkor::Gallery {

namespace {

constexpr int PICTURE_MARGIN = 12;
constexpr int HINT_DELAY_MS = 800; ///< until the window system has put the window into its place
const QString HINT_SHOWN = QStringLiteral("firstHintShown");

void Wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

bool MakeFolder(const QString& folder)
{
    if (QDir().mkpath(folder))
        return true;
    Complain(QString("cannot make the folder '%1'").arg(folder));
    return false;
}

int Save(const QImage& picture, const QString& file)
{
    // Of a PNG, the quality is the effort: 0 makes the smallest file.
    if (picture.save(file, "PNG", 0))
        return EXIT_SUCCESS;
    Complain(QString("cannot write the picture '%1'").arg(file));
    return EXIT_FAILURE;
}

} // namespace

void Complain(const QString& text)
{
    std::fprintf(stderr, "VxGallery: %s\n", qPrintable(text));
}

Application::Application(Options options) : options(std::move(options))
{
    if (!this->options.language.isEmpty())
        preferences.SetLanguage(this->options.language);
    preferences.SetStyleName(this->options.styleName);
    UseLanguage(preferences.Language());
    if (this->options.rightToLeft)
        QApplication::setLayoutDirection(Qt::RightToLeft);
    ApplyStyleSheet(this->options.style);
    QApplication::setWindowIcon(StyleIcon("app"));
    // Two pictures of a page shall differ in nothing but the live picture.
    if (this->options.TakesPictures())
        QApplication::setCursorFlashTime(0);

    QObject::connect(&devices, &StandIn::DeviceList::Changed, &model,
                     [this] { model.SetDevices(devices.GetDevices()); });
    QObject::connect(&preferences, &Preferences::LanguageChanged, &model,
                     [this](const QString& code) { UseLanguage(code); });
    QObject::connect(&preferences, &Preferences::StyleNameChanged, &model,
                     [this](const QString& name) { UseStyle(name); });
    model.SetDevices(devices.GetDevices());
    editStyle.setShortcut(Qt::Key_F12);
    editStyle.setShortcutContext(Qt::ApplicationShortcut);
    QObject::connect(&editStyle, &QAction::triggered, &model, [this] { OpenStyleEditor(); });
}

Application::~Application() = default;

int Application::Run()
{
    if (!options.shots.isEmpty())
        return TakeAllPictures();
    if (!options.pictures.isEmpty())
        return TakePicturesOfWidgets();
    const QString page = options.page.isEmpty() ? RecorderPageName() : options.page;
    if (!options.shot.isEmpty())
        return TakePictureOfPage(page, options.shot);
    OpenPage(page);
    GreetOnce();
    return QApplication::exec();
}

void Application::UseLanguage(const QString& code)
{
    if (!translations.Use(code))
        Complain(QString("there are no texts for the language '%1'; going on in English").arg(code));
}

void Application::UseStyle(const QString& name)
{
    QString error;
    if (const auto sheet = LoadStyleSheet(name, error))
        ApplyStyleSheet(*sheet);
}

QWidget* Application::OpenPage(const QString& name)
{
    if (name == RecorderPageName()) {
        if (!recorder) {
            recorder = std::make_unique<RecorderWindow>(&model, &preferences);
            recorder->resize(recorder->sizeHint());
            QObject::connect(recorder.get(), &RecorderWindow::WidgetsRequested, recorder.get(),
                             [this] { OpenWidgets(); });
            QObject::connect(recorder.get(), &RecorderWindow::StyleEditorRequested, &editStyle, &QAction::trigger);
            recorder->addAction(&editStyle);
        }
        Show(recorder.get(), options.size);
        return recorder.get();
    }
    if (!gallery)
        MakeGallery();
    gallery->OpenPage(name);
    Show(gallery.get(), options.size);
    return gallery.get();
}

void Application::Show(QWidget* window, const QSize& size) const
{
    if (size.isValid()) {
        // The person's size counts, also below what the window would like.
        window->setMinimumSize(1, 1);
        window->resize(size);
    } else if (!options.TakesPictures()) {
        FitScreen(window);
    }
    window->show();
}

void Application::MakeGallery()
{
    gallery = std::make_unique<GalleryWindow>(&model, &preferences, options.scale);
    gallery->addAction(&editStyle);
    QObject::connect(gallery.get(), &GalleryWindow::StyleEditorRequested, &editStyle, &QAction::trigger);
    QObject::connect(gallery.get(), &GalleryWindow::RestartRequested, gallery.get(),
                     [this](double scale, const QString& page) { Restart(scale, page); });
}

// The new program comes up as this one looks now.
void Application::Restart(double scale, const QString& page)
{
    const QString style = preferences.StyleName().isEmpty() ? options.styleArgument : preferences.StyleName();
    QStringList arguments = {"--scale", QString::number(scale), "--style", style, "--language", preferences.Language()};
    if (!page.isEmpty())
        arguments += QStringList{"--page", page};
    if (QApplication::layoutDirection() == Qt::RightToLeft)
        arguments += "--rtl";
    if (QProcess::startDetached(QApplication::applicationFilePath(), arguments))
        QApplication::quit();
    else
        Complain("cannot start another gallery");
}

void Application::OpenStyleEditor()
{
    if (!styleEditor) {
        styleEditor = std::make_unique<ZRuntimeStylesheetEditor>();
        styleEditor->setAttribute(Qt::WA_QuitOnClose, false);
    }
    styleEditor->show();
    styleEditor->raise();
    styleEditor->activateWindow();
}

// Somebody who has seen the hint once knows. Without a screen, nobody would see it.
void Application::GreetOnce()
{
    if (!recorder || QApplication::platformName() == "offscreen")
        return;
    QTimer::singleShot(HINT_DELAY_MS, recorder.get(), [this] {
        QSettings settings("VxUiWidgets", QApplication::applicationName());
        if (!recorder->isVisible() || settings.value(HINT_SHOWN).toBool())
            return;
        settings.setValue(HINT_SHOWN, true);
        recorder->ShowFirstHint();
    });
}

// The gallery has the recorder as a page of its own, and a camera can be open only once: the one window goes while the
// other is there.
void Application::OpenWidgets()
{
    if (!gallery) {
        MakeGallery();
        QObject::connect(gallery.get(), &GalleryWindow::Closed, recorder.get(), [this] { recorder->show(); });
    }
    gallery->OpenPage(PageNames().value(1));
    Show(gallery.get(), QSize());
    recorder->hide();
}

int Application::TakePictureOfPage(const QString& page, const QString& file)
{
    QWidget* window = OpenPage(page);
    // Half of the time goes by before the button is pressed: the window system may still move the window.
    Wait(options.after / 2);
    if (!options.press.isEmpty()) {
        QAbstractButton* button = FindButton(window, options.press);
        if (!button) {
            Complain(QString("there is no button '%1' on this page").arg(options.press));
            return EXIT_BAD_USE;
        }
        button->click();
    }
    Wait(options.after - options.after / 2);
    return Save(TakePicture(window), file);
}

int Application::TakeAllPictures()
{
    if (!MakeFolder(options.shots))
        return EXIT_FAILURE;
    for (const QString& page : PageNames()) {
        const int result = TakePictureOfPage(page, QDir(options.shots).filePath(page + ".png"));
        if (result != EXIT_SUCCESS)
            return result;
        // A window that is out of the picture runs nothing.
        if (recorder)
            recorder->hide();
    }
    return EXIT_SUCCESS;
}

int Application::TakePicturesOfWidgets()
{
    if (!MakeFolder(options.pictures))
        return EXIT_FAILURE;
    for (const Entry& entry : Entries()) {
        QWidget backdrop;
        // Else the widget would have the focus, and show it.
        backdrop.setFocusPolicy(Qt::StrongFocus);
        backdrop.setFocus();
        QWidget* widget = CreateInState(entry, entry.states[entry.pictured], &backdrop);
        widget->adjustSize();
        widget->move(PICTURE_MARGIN, PICTURE_MARGIN);
        backdrop.resize(widget->size() + QSize(2 * PICTURE_MARGIN, 2 * PICTURE_MARGIN));
        backdrop.show();
        Wait(options.after);
        const QImage picture = backdrop.grab().toImage();
        const int result = Save(picture, QDir(options.pictures).filePath(entry.className + ".png"));
        if (result != EXIT_SUCCESS)
            return result;
    }
    return EXIT_SUCCESS;
}

} // namespace Zelkor::Gallery
