#include <Catalogue/Catalogue.h>
#include <Examples/Support/WidgetTexts.h>
#include <UI/Kit/ZStyleSheet.h>
#include <UI/Kit/ZWindowChrome.h>
#include <UI/Widgets/CustomTitleBar.h>
#include <UI/Widgets/StyledAboutBoxDialog.h>

#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>
#include <QVariant>

using Zelkor::Vx::UI::CustomTitleBar;
using Zelkor::Vx::UI::StyledAboutBoxDialog;

namespace Zelkor::Catalogue {

using namespace Examples;

namespace {

constexpr QSize DESKTOP_SIZE(336, 152);
constexpr QSize SAMPLE_SIZE(296, 112);
constexpr int CONTENT_MARGIN = 12;
constexpr int DISTANCE = 12;
constexpr Qt::WindowFlags CLOSE_BUTTON = Qt::WindowCloseButtonHint;
constexpr Qt::WindowFlags BOTH_BUTTONS = CLOSE_BUTTON | Qt::WindowMinimizeButtonHint;
constexpr Qt::WindowFlags ALL_BUTTONS = BOTH_BUTTONS | Qt::WindowMaximizeButtonHint;

/// A window inside the page, for a title bar. It cannot be minimised or closed, and fills its parent when maximised.
class SampleWindow : public QFrame
{
public:
    SampleWindow(Qt::WindowFlags buttons, QWidget* parent) : QFrame(parent, buttons)
    {
        setObjectName(QStringLiteral("sampleWindow"));
        setWindowTitle(EntryText::tr("Recorder"));
        setWindowIcon(ZStyleSheet::icon("app"));
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(CONTENT_MARGIN, CONTENT_MARGIN, CONTENT_MARGIN, CONTENT_MARGIN);
        label = new QLabel(EntryText::tr("Drag the window by its title bar or by this text."));
        label->setWordWrap(true);
        AlignAtStart(label);
        layout->addWidget(label);
        layout->addStretch();
        bar = new CustomTitleBar(this);
        resize(SAMPLE_SIZE);
    }

    QLabel* label;
    CustomTitleBar* bar;

protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }

    void changeEvent(QEvent* event) override
    {
        QFrame::changeEvent(event);
        if (event->type() == QEvent::WindowStateChange && isMinimized())
            setWindowState(Qt::WindowNoState);
    }
};

/// The screen background around the sample.
class SampleDesktop : public QFrame
{
public:
    SampleDesktop(Qt::WindowFlags buttons, QWidget* parent) : QFrame(parent), window(new SampleWindow(buttons, this))
    {
        setObjectName(QStringLiteral("sampleDesktop"));
        setFixedSize(DESKTOP_SIZE);
        window->move(QRect(QPoint(), DESKTOP_SIZE).center() - window->rect().center());
    }

    SampleWindow* window;
};

QWidget* CreateDesktop(QWidget* parent)
{
    return new SampleDesktop(BOTH_BUTTONS, parent);
}

State WindowState(const QString& name, void (*apply)(SampleWindow&))
{
    return MakeState<SampleDesktop>(name, [apply](SampleDesktop& desktop) { apply(*desktop.window); });
}

QToolButton* MakeTool(const char* icon, const QString& name)
{
    auto* button = new QToolButton;
    button->setAutoRaise(true);
    button->setIcon(ZStyleSheet::icon(icon));
    button->setToolTip(name);
    button->setAccessibleName(name);
    return button;
}

void AddTools(SampleWindow& window)
{
    window.bar->AddWidget(MakeTool("hint", EntryText::tr("Help")));
    window.bar->AddWidget(MakeTool("settings", EntryText::tr("Settings")));
    window.bar->AddSeparator();
}

// Opens a window with its own title bar, which has a tool button.
void OpenTitledWindow(QWidget* parent)
{
    auto* window = new QWidget(parent, Qt::Window);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(EntryText::tr("Recorder"));
    window->setWindowIcon(ZStyleSheet::icon("app"));
    auto* layout = new QVBoxLayout(window);
    layout->addWidget(new QLabel(EntryText::tr("Drag the window by its title bar or by this text.")));
    layout->addStretch();
    auto* settings = new QToolButton;
    settings->setAutoRaise(true);
    settings->setIcon(ZStyleSheet::icon("settings"));
    settings->setToolTip(EntryText::tr("Settings"));
    // The title bar adds itself to the layout, and removes the frame of the window.
    auto* titleBar = new CustomTitleBar(window);
    titleBar->AddWidget(settings);
    titleBar->AddSeparator();
    window->show();
}

Entry CustomTitleBarEntry()
{
    return {
        "CustomTitleBar",
        EntryText::tr("Windows"),
        EntryText::tr("A title bar that the application draws itself, for a window without a frame."),
        "CustomTitleBar",
        "window",
        CreateDesktop,
        {
            MadeState(EntryText::tr("Typical"), CreateDesktop),
            WindowState(EntryText::tr("With tools"), AddTools),
            MadeState(EntryText::tr("Close only"),
                      [](QWidget* parent) { return new SampleDesktop(CLOSE_BUTTON, parent); }),
            WindowState(EntryText::tr("Long title"),
                        [](SampleWindow& window) {
                            window.setWindowTitle(
                                EntryText::tr("Recording of the weekly meeting, second part - Recorder"));
                        }),
            WindowState(EntryText::tr("No icon"), [](SampleWindow& window) { window.setWindowIcon(QIcon()); }),
            WindowState(EntryText::tr("Disabled"),
                        [](SampleWindow& window) {
                            AddTools(window);
                            window.setEnabled(false);
                        }),
        },
        [](QWidget* parent) -> QObject* { return (new SampleWindow(BOTH_BUTTONS, parent))->bar; },
    };
}

QWidget* CreateChromeDesktop(QWidget* parent)
{
    auto* desktop = new SampleDesktop(ALL_BUTTONS, parent);
    SampleWindow* window = desktop->window;
    window->label->setText(EntryText::tr("Resize the window by its edges, and double-click its title bar."));
    (new ZWindowChrome(window))->setTitleBar(window->bar);
    return desktop;
}

// Opens a window without a frame that is resized by its edges.
void OpenResizableWindow(QWidget* parent)
{
    auto* window = new QWidget(parent, Qt::Window);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(EntryText::tr("Recorder"));
    auto* label = new QLabel(EntryText::tr("Resize the window by its edges, and double-click its title bar."));
    label->setWordWrap(true);
    AlignAtStart(label);
    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins(CONTENT_MARGIN, CONTENT_MARGIN, CONTENT_MARGIN, CONTENT_MARGIN);
    layout->addWidget(label);
    layout->addStretch();
    auto* chrome = new ZWindowChrome(window);
    chrome->setTitleBar(new CustomTitleBar(window));
    window->resize(DESKTOP_SIZE);
    window->show();
}

/// The sample inside the page, and a button that opens a window of the window system.
class ChromeHost : public QWidget
{
public:
    explicit ChromeHost(QWidget* parent) : QWidget(parent), desktop(CreateChromeDesktop(this))
    {
        auto* button = new QPushButton(EntryText::tr("Open a window"));
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(DISTANCE);
        layout->addWidget(desktop);
        layout->addWidget(button, 0, Qt::AlignLeading);
        connect(button, &QPushButton::clicked, this, [this] { OpenResizableWindow(this); });
    }

private:
    QWidget* desktop;
};

QWidget* CreateChrome(QWidget* parent)
{
    return new ChromeHost(parent);
}

State ChromeState(const QString& name, void (*apply)(SampleWindow&))
{
    return {name, [apply](QWidget* desktop) { apply(*static_cast<SampleDesktop*>(desktop)->window); },
            CreateChromeDesktop};
}

Entry WindowChromeEntry()
{
    return {
        "ZWindowChrome",
        EntryText::tr("Windows"),
        EntryText::tr("Lets a window without a frame be resized, maximised and restored like one with a frame."),
        "ZWindowChrome",
        "maximize",
        CreateChrome,
        {
            MadeState(EntryText::tr("Typical"), CreateChrome),
            ChromeState(EntryText::tr("Maximised"), [](SampleWindow& window) { window.showMaximized(); }),
            ChromeState(EntryText::tr("Fixed size"), [](SampleWindow& window) { window.setFixedSize(SAMPLE_SIZE); }),
        },
        MakeBare<ZWindowChrome>,
        0,
    };
}

// Opens the dialog, with a link to a page of the application.
void ShowAboutDialog(QWidget* parent)
{
    auto* dialog = new StyledAboutBoxDialog(EntryText::tr("Recorder"), "2.4.1",
                                            EntryText::tr("Copyright 2026 Example Company"), parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->SetCustomUrl(QUrl("https://example.com/news"));
    dialog->open();
}

/// A static copy of the dialog that is always visible and never takes the focus.
class AboutLook : public StyledAboutBoxDialog
{
public:
    AboutLook(const QString& legal, QWidget* parent)
        : StyledAboutBoxDialog(EntryText::tr("Recorder"), "2.4.1", legal, parent)
    {
        setWindowFlags(Qt::Widget);
        setAccessibleName(windowTitle());
    }

    void done(int) override {}

protected:
    void showEvent(QShowEvent* event) override { QWidget::showEvent(event); }
};

/// The static copy, and a button that opens the dialog itself.
class AboutHost : public QWidget
{
public:
    AboutHost(const QString& legal, QWidget* parent) : QWidget(parent), look(new AboutLook(legal, this))
    {
        auto* button = new QPushButton(EntryText::tr("Show the dialog"));
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(DISTANCE);
        layout->addWidget(look, 0, Qt::AlignLeading);
        layout->addWidget(button, 0, Qt::AlignLeading);
        connect(button, &QPushButton::clicked, this,
                [this, legal] { StyledAboutBoxDialog::ShowAbout(EntryText::tr("Recorder"), "2.4.1", legal, this); });
    }

    AboutLook* look;
};

QWidget* CreateAbout(QWidget* parent)
{
    return new AboutHost(EntryText::tr("Copyright 2026 Example Company"), parent);
}

Entry StyledAboutBoxDialogEntry()
{
    return {
        "StyledAboutBoxDialog",
        EntryText::tr("Windows"),
        EntryText::tr("The about dialog, whose links take their style from the style sheet."),
        "StyledAboutBoxDialog",
        "information",
        CreateAbout,
        {
            MadeState(EntryText::tr("Typical"), CreateAbout),
            MakeState<AboutHost>(EntryText::tr("Link of its own"),
                                 [](AboutHost& host) { host.look->SetCustomUrl(QUrl("https://example.com/news")); }),
            MadeState(EntryText::tr("Long text"),
                      [](QWidget* parent) {
                          return new AboutHost(
                              EntryText::tr("Copyright 2026 Example Company. All rights reserved. Protected "
                                            "by law; made with the help of many."),
                              parent);
                      }),
            DisabledState(),
        },
        [](QWidget* parent) -> QObject* { return new StyledAboutBoxDialog({}, {}, {}, parent); },
    };
}

} // namespace

QVector<Entry> WindowEntries()
{
    // The title bar would remove the frame and layout of a form editor's window.
    return {NotInForms(WithExample(CustomTitleBarEntry(), OpenTitledWindow), "it rebuilds its window"),
            NotInForms(WithExample(WindowChromeEntry(), OpenResizableWindow), "it is not a widget"),
            NotInForms(WithExample(StyledAboutBoxDialogEntry(), ShowAboutDialog), "it is a dialog, whole as it is")};
}

} // namespace Zelkor::Catalogue
