#include "Application.h"
#include "Screenshot.h"

#include <Catalogue/Catalogue.h>
#include <Examples/Support/FramelessWindow.h>
#include <Examples/Support/ScreenFit.h>
#include <Gallery/Browser/GalleryWindow.h>
#include <Gallery/Browser/StateCard.h>
#include <Gallery/Palette/PaletteEditor.h>
#include <UI/Kit/ZRuntimeStylesheetEditor.h>
#include <UI/Kit/ZStyleSheet.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>

namespace Zelkor::Gallery {

using namespace Examples;

namespace {

constexpr int PICTURE_MARGIN = 16;
constexpr int PICTURE_WIDTH = 760;
constexpr int CARDS_IN_PICTURE = 3;
const QString OWN_SHEET = QStringLiteral("Own");

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
    PrintError(QString("cannot make the folder '%1'").arg(folder));
    return false;
}

// Shows the name of a widget above cards with its pictured state and, as far as there is room, the next ones.
void AddCards(const Catalogue::Entry& entry, QWidget* backdrop)
{
    auto* title = new QLabel(entry.className);
    title->setObjectName("title");
    auto* row = new QHBoxLayout;
    int width = 2 * PICTURE_MARGIN;
    for (int i = 0; i < qMin(CARDS_IN_PICTURE, entry.states.size()); ++i) {
        auto* card =
            new StateCard(entry, entry.states[(entry.pictured + i) % entry.states.size()], QVariantMap(), backdrop);
        card->ensurePolished();
        width += card->sizeHint().width() + row->spacing();
        if (i > 0 && width > PICTURE_WIDTH) {
            delete card;
            break;
        }
        row->addWidget(card);
    }
    auto* layout = new QVBoxLayout(backdrop);
    layout->setContentsMargins(PICTURE_MARGIN, PICTURE_MARGIN, PICTURE_MARGIN, PICTURE_MARGIN);
    layout->addWidget(title);
    layout->addLayout(row);
}

int Save(const QImage& picture, const QString& file)
{
    // For PNG, the quality is the compression: 0 writes the smallest file.
    if (picture.save(file, "PNG", 0))
        return EXIT_SUCCESS;
    PrintError(QString("cannot write the picture '%1'").arg(file));
    return EXIT_FAILURE;
}

} // namespace

void PrintError(const QString& text)
{
    std::fprintf(stderr, "VxGallery: %s\n", qPrintable(text));
}

Application::Application(Options options) : options(std::move(options)), appearance("VxGallery")
{
    // Entries are translated at creation, and the options have created them. Windows recreate their pages after this.
    QObject::connect(&appearance, &Examples::Appearance::LanguageChanged, &editStyle,
                     [] { Catalogue::RetranslateEntries(); });
    if (!this->options.language.isEmpty() && !appearance.SetLanguage(this->options.language))
        PrintError(QString("there are no translations for '%1'; continuing in English").arg(this->options.language));
    if (this->options.rightToLeft)
        QApplication::setLayoutDirection(Qt::RightToLeft);
    ApplyStyle();
    QApplication::setWindowIcon(ZStyleSheet::icon("app"));
    // Two pictures of a page must differ in live content only.
    if (this->options.TakesPictures())
        QApplication::setCursorFlashTime(0);

    editStyle.setShortcut(Qt::Key_F12);
    editStyle.setShortcutContext(Qt::ApplicationShortcut);
    QObject::connect(&editStyle, &QAction::triggered, &editStyle, [this] { OpenStyleEditor(); });
}

Application::~Application() = default;

void Application::ApplyStyle()
{
    QString style = options.styleArgument;
    QString error;
    if (options.palette)
        style = WriteStyleSheet(*options.palette, OWN_SHEET, sheets.path(), &error);
    if (error.isEmpty())
        appearance.SetStyle(style, &error);
    if (!error.isEmpty())
        PrintError(error);
}

int Application::Run()
{
    if (!options.shots.isEmpty())
        return TakeAllPictures();
    if (!options.pictures.isEmpty())
        return TakePicturesOfWidgets();
    const QString page = options.page.isEmpty() ? StartPageName() : options.page;
    if (!options.shot.isEmpty())
        return TakePictureOfPage(page, options.shot);
    OpenPage(page);
    return QApplication::exec();
}

QWidget* Application::OpenPage(const QString& name)
{
    if (!gallery)
        MakeGallery();
    gallery->OpenPage(name, options.state);
    if (options.size.isValid()) {
        // The size on the command line overrides the minimum size.
        gallery->setMinimumSize(1, 1);
        gallery->resize(options.size);
    } else if (!options.TakesPictures()) {
        Examples::FitToScreen(gallery.get());
    }
    gallery->show();
    return gallery.get();
}

void Application::MakeGallery()
{
    gallery = std::make_unique<GalleryWindow>(&appearance, options.scale);
    gallery->addAction(&editStyle);
    gallery->installEventFilter(this);
    QObject::connect(gallery.get(), &GalleryWindow::RecorderRequested, gallery.get(), [this] { StartRecorder(); });
    QObject::connect(gallery.get(), &GalleryWindow::StyleEditorRequested, &editStyle, &QAction::trigger);
    QObject::connect(gallery.get(), &GalleryWindow::RestartRequested, gallery.get(),
                     [this](double scale, const QString& page, int state) { Restart(scale, page, state); });
}

// Returns the arguments that give another program the current look.
QStringList Application::LookArguments() const
{
    QStringList arguments = {"--style", LastingStyle(), "--language", appearance.Language()};
    if (QApplication::layoutDirection() == Qt::RightToLeft)
        arguments += "--rtl";
    return arguments;
}

// Returns the current style. The sheet of an edited palette is in a folder that ends with this program: writes it with
// its palette to another one.
QString Application::LastingStyle() const
{
    const QString style = appearance.CurrentStyle();
    const auto palette = style.startsWith(QDir::tempPath()) ? Palette::Beside(style) : std::nullopt;
    if (!palette)
        return style;
    QString error;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    const QString sheet = WriteStyleSheet(*palette, OWN_SHEET, folder, &error);
    if (error.isEmpty())
        return sheet;
    PrintError(error);
    return Examples::Appearance::AllStyles().first().name;
}

void Application::StartRecorder()
{
    // The name of the recorder ends as that of the gallery does.
    const QFileInfo gallery(QApplication::applicationFilePath());
    const QString program = gallery.dir().filePath(gallery.fileName().replace("VxGallery", "VxRecorder"));
    if (!QProcess::startDetached(program, LookArguments()))
        PrintError(QString("cannot start '%1'").arg(program));
}

// Returns whether no changes would be lost. Otherwise the editor of the style sheet asks what to do with them.
bool Application::MayEnd()
{
    if (!styleEditor || !styleEditor->isModified())
        return true;
    OpenStyleEditor();
    styleEditor->close();
    return false;
}

bool Application::eventFilter(QObject* watched, QEvent* event)
{
    auto* palette = watched->findChild<PaletteEditor*>();
    if (event->type() != QEvent::Close || (MayEnd() && (!palette || palette->ConfirmDiscard())))
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

void Application::Restart(double scale, const QString& page, int state)
{
    if (!MayEnd())
        return;
    QStringList arguments = LookArguments() + QStringList{"--scale", QString::number(scale)};
    if (!page.isEmpty())
        arguments += QStringList{"--page", page};
    if (state > 0)
        arguments += QStringList{"--state", QString::number(state + 1)};
    // Otherwise the other gallery would inherit the scale of this one.
    if (options.scale != 1)
        qunsetenv("QT_SCALE_FACTOR");
    if (QProcess::startDetached(QApplication::applicationFilePath(), arguments))
        QApplication::quit();
    else
        PrintError("cannot start another gallery");
}

void Application::OpenStyleEditor()
{
    if (!styleEditor) {
        styleEditor = std::make_unique<ZRuntimeStylesheetEditor>();
        styleEditor->setAttribute(Qt::WA_QuitOnClose, false);
        Examples::ReplaceFrame(styleEditor.get());
    }
    styleEditor->show();
    styleEditor->raise();
    styleEditor->activateWindow();
}

int Application::TakePictureOfPage(const QString& page, const QString& file)
{
    QWidget* window = OpenPage(page);
    // Waits before the click as well: the window system may still move the window.
    Wait(options.after / 2);
    const int rest = options.after - options.after / 2;
    if (!options.press.isEmpty())
        return TakePictureAfterClick(window, file, rest);
    Wait(rest);
    return Save(TakePicture(window), file);
}

// A click that opens a menu returns when this closes. Takes the picture meanwhile, and ends all event loops.
int Application::TakePictureAfterClick(QWidget* window, const QString& file, int delay)
{
    QAbstractButton* button = FindButton(window, options.press);
    if (!button) {
        PrintError(QString("there is no button '%1' on this page").arg(options.press));
        return EXIT_BAD_USE;
    }
    // The button may close windows.
    QApplication::setQuitOnLastWindowClosed(false);
    QTimer::singleShot(0, button, [=] {
        QTimer::singleShot(delay, window, [=] { QApplication::exit(Save(TakePicture(window), file)); });
        button->click();
    });
    return QApplication::exec();
}

int Application::TakeAllPictures()
{
    if (!MakeFolder(options.shots))
        return EXIT_FAILURE;
    for (const QString& page : PageNames()) {
        const int result = TakePictureOfPage(page, QDir(options.shots).filePath(page + ".png"));
        if (result != EXIT_SUCCESS)
            return result;
    }
    return EXIT_SUCCESS;
}

int Application::TakePicturesOfWidgets()
{
    if (!MakeFolder(options.pictures))
        return EXIT_FAILURE;
    for (const Catalogue::Entry& entry : Catalogue::Entries()) {
        QWidget backdrop;
        // Keeps the focus off the widget.
        backdrop.setFocusPolicy(Qt::StrongFocus);
        backdrop.setFocus();
        AddCards(entry, &backdrop);
        backdrop.adjustSize();
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
