#include "RecorderWindow.h"
#include "FittingScrollArea.h"
#include "RecorderView.h"
#include "SettingsDialog.h"

#include <Examples/Support/FramelessWindow.h>
#include <Examples/Support/WidgetTexts.h>
#include <UI/Kit/ZStyleSheet.h>
#include <UI/Widgets/CustomTitleBar.h>
#include <UI/Widgets/StyledAboutBoxDialog.h>

#include <QEvent>
#include <QToolButton>
#include <QVBoxLayout>

using Zelkor::Vx::UI::CustomTitleBar;
using Zelkor::Vx::UI::StyledAboutBoxDialog;

namespace Zelkor::Recorder {

RecorderWindow::RecorderWindow(RecorderModel* model, Preferences* preferences, Examples::Appearance* appearance)
    : preferences(preferences), appearance(appearance), view(new RecorderView(model, preferences))
{
    setObjectName("recorderWindow");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new FittingScrollArea(view));
    CustomTitleBar* titleBar = Examples::ReplaceFrame(this);
    trimButton = new QToolButton;
    styleButton = new QToolButton;
    settingsButton = new QToolButton;
    aboutButton = new QToolButton;
    const std::pair<QToolButton*, const char*> buttons[] = {
        {trimButton, "trim"}, {styleButton, "style"}, {settingsButton, "settings"}, {aboutButton, "information"}};
    for (const auto& [button, icon] : buttons) {
        button->setFocusPolicy(Qt::StrongFocus);
        button->setAutoRaise(true);
        button->setIcon(ZStyleSheet::icon(icon));
        titleBar->AddWidget(button);
    }
    titleBar->AddSeparator();
    addActions(view->actions());
    view->FocusRecordButton();

    connect(trimButton, &QToolButton::clicked, this, &RecorderWindow::TrimmerRequested);
    connect(styleButton, &QToolButton::clicked, this, &RecorderWindow::StyleEditorRequested);
    connect(settingsButton, &QToolButton::clicked, this, &RecorderWindow::ShowSettings);
    connect(aboutButton, &QToolButton::clicked, this, &RecorderWindow::ShowAbout);
    Retranslate();
}

void RecorderWindow::ShowFirstHint()
{
    view->ShowFirstHint();
}

void RecorderWindow::ShowSettings()
{
    if (!settings) {
        settings = new SettingsDialog(preferences, appearance, this);
        settings->setAttribute(Qt::WA_DeleteOnClose);
    }
    settings->show();
    settings->raise();
    settings->activateWindow();
}

void RecorderWindow::ShowAbout()
{
    auto* about = new StyledAboutBoxDialog(windowTitle(), tr("Version %1").arg("1.0.0"),
                                           tr("Shows the widgets of VxUiWidgets at work. Nothing is recorded."), this);
    about->setAttribute(Qt::WA_DeleteOnClose);
    Examples::ReplaceFrame(about);
    about->show();
}

void RecorderWindow::Retranslate()
{
    setWindowTitle(tr("Vx Recorder"));
    const auto name = [](QToolButton* button, const QString& text) {
        button->setAccessibleName(text);
        button->setToolTip(text);
    };
    name(trimButton, tr("Trim a recording"));
    name(styleButton, tr("Edit the style sheet (F12)"));
    name(settingsButton, tr("Settings"));
    name(aboutButton, tr("About"));
}

void RecorderWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
}

} // namespace Zelkor::Recorder
