#include "RecorderView.h"
#include "AudioPanel.h"
#include "CaptureBar.h"
#include "FirstHint.h"
#include "Preferences.h"
#include "PreviewStage.h"
#include "RecorderModel.h"
#include "Recording.h"
#include "Snapshot.h"
#include "SourcePanel.h"
#include "ToolStrip.h"

#include <Examples/Support/WidgetTexts.h>
#include <UI/Kit/ZLabel.h>
#include <UI/Kit/ZStyleSheet.h>
#include <UI/Widgets/ButtonWithPopUpContainer.h>
#include <UI/Widgets/CountdownIndicatorWidget.h>
#include <UI/Widgets/VideoPreviewWidget.h>
#include <UI/Widgets/WebCameraPreviewStream.h>

#include <Zelkor/Util/WidgetStyle.h>

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

using Zelkor::Vx::CountdownIndicatorWidget;
using Zelkor::Vx::WebCameraPreviewStream;
using Zelkor::Vx::UI::ButtonWithPopUpContainer;

namespace Zelkor::Recorder {

using namespace Examples;

namespace {

constexpr int MARGIN = 16;
constexpr int SPACING = 12;
constexpr int SMALL_SPACING = 8;

// Returns minutes and seconds; minutes may exceed 59.
QString DurationText(int seconds)
{
    return QStringLiteral("%1:%2")
        .arg(seconds / 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

RecorderView::RecorderView(RecorderModel* model, const Preferences* preferences, QWidget* parent)
    : QWidget(parent), model(model), preferences(preferences), recording(new Recording(this)), stage(new PreviewStage),
      stream(new WebCameraPreviewStream(stage->Preview()))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(MARGIN, SPACING, MARGIN, MARGIN);
    layout->setSpacing(SPACING);
    layout->addWidget(CreateHeader());
    layout->addWidget(stage, 1);
    captureBar = new CaptureBar(model);
    addActions(captureBar->actions());
    layout->addWidget(captureBar);
    layout->addWidget(CreateToolBar());
    CreateErrorBanner();
    CoverStage();

    connect(runButton, &QToolButton::clicked, this, &RecorderView::ToggleRunning);
    connect(recordButton, &QToolButton::clicked, this, &RecorderView::ToggleRecording);
    connect(recording, &Recording::Changed, this, &RecorderView::ShowRecording);
    connect(settingsButton, &QToolButton::clicked, stream, &WebCameraPreviewStream::ShowCurrentDeviceSettings);
    connect(stream, &WebCameraPreviewStream::WebCameraOpenError, model, &RecorderModel::ReportFailure);
    connect(model, &RecorderModel::RestartNeeded, this, &RecorderView::RunPicture);
    connect(model, &RecorderModel::StatusChanged, this, &RecorderView::ShowStatus);
    connect(model, &RecorderModel::OfferChanged, this, &RecorderView::ShowStatus);
    Retranslate();
}

QWidget* RecorderView::CreateHeader()
{
    auto* header = new QWidget;
    auto* layout = new QHBoxLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(SMALL_SPACING);
    stateDot = new QFrame;
    stateDot->setObjectName("stateDot");
    statusText = new ZLabel;
    statusText->setObjectName("statusText");
    statusText->setClickable(false);
    AlignAtStart(statusText);
    statusText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    layout->addWidget(stateDot);
    layout->addWidget(statusText, 1);
    return header;
}

QWidget* RecorderView::CreateToolBar()
{
    auto* bar = new QWidget;
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(SMALL_SPACING);
    sourceButton = CreatePanelButton("camera", new SourcePanel(model));
    audioButton = CreatePanelButton("microphone", new AudioPanel);
    settingsButton = new QToolButton;
    settingsButton->setFocusPolicy(Qt::StrongFocus);
    settingsButton->setIcon(ZStyleSheet::icon("settings"));
    settingsButton->hide();
    runButton = new QToolButton;
    runButton->setObjectName("runButton");
    runButton->setFocusPolicy(Qt::StrongFocus);
    runButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    recordButton = new QToolButton;
    recordButton->setObjectName("recordButton");
    recordButton->setFocusPolicy(Qt::StrongFocus);
    recordButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);

    layout->addWidget(sourceButton);
    layout->addWidget(audioButton);
    layout->addWidget(settingsButton);
    layout->addWidget(new ToolStrip, 1);
    layout->addWidget(runButton);
    layout->addWidget(recordButton);
    return bar;
}

ButtonWithPopUpContainer* RecorderView::CreatePanelButton(const QString& icon, QWidget* panel)
{
    auto* button = new ButtonWithPopUpContainer;
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setIcon(ZStyleSheet::icon(icon));
    // Opens upwards: the bar is often at the bottom of the screen.
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    button->SetPreferredPopupAnchor(mirrored ? ButtonWithPopUpContainer::ANCHOR_TOP_RIGHT
                                             : ButtonWithPopUpContainer::ANCHOR_TOP_LEFT);
    button->SetPreferredPopupDirection(mirrored ? ButtonWithPopUpContainer::DIRECTION_UP_LEFT
                                                : ButtonWithPopUpContainer::DIRECTION_UP_RIGHT);
    button->SetPopupCanOverlapButton(false);
    button->AppendWidget(panel);
    return button;
}

void RecorderView::CreateErrorBanner()
{
    errorBanner = new QFrame;
    errorBanner->setObjectName("errorBanner");
    errorText = new QLabel;
    errorText->setObjectName("errorText");
    errorText->setWordWrap(true);
    auto* layout = new QHBoxLayout(errorBanner);
    layout->setContentsMargins(SPACING, SMALL_SPACING, SPACING, SMALL_SPACING);
    layout->setSpacing(SMALL_SPACING);
    auto* icon = new QLabel;
    icon->setObjectName("errorIcon");
    layout->addWidget(icon, 0, Qt::AlignTop);
    layout->addWidget(errorText, 1);
    errorBanner->hide();
}

// Widgets over the picture, which do not affect the layout.
void RecorderView::CoverStage()
{
    snapshot = new Snapshot(stage->Preview());
    snapshot->hide();
    auto* over = new QVBoxLayout(stage);
    over->setContentsMargins(SPACING, SPACING, SPACING, SPACING);
    countdown = new CountdownIndicatorWidget(nullptr);
    countdown->setProperty("role", QStringLiteral("card"));
    countdown->hide();
    over->addStretch();
    over->addWidget(countdown, 0, Qt::AlignCenter);
    over->addStretch();
    over->addWidget(errorBanner);
}

void RecorderView::RunPicture()
{
    if (!isVisible())
        return;
    stage->SetLive(false);
    stream->SetDevice(model->CurrentDevice(), model->CurrentMode(), model->CurrentFrameRate());
    stream->StartStream();
    stage->SetLive(true);
    settingsButton->setVisible(stream->IsWebcameraSettingsAvailable());
    ShowStatus();
}

void RecorderView::ToggleRunning()
{
    if (model->GetStatus() == RecorderModel::Status::Running)
        model->Stop();
    else
        model->Start();
}

void RecorderView::ToggleRecording()
{
    if (recording->GetState() == Recording::State::Idle)
        recording->Start(preferences->countdownSeconds);
    else
        recording->Stop();
}

void RecorderView::ShowRecording()
{
    const Recording::State state = recording->GetState();
    const bool idle = state == Recording::State::Idle;
    countdown->SetSeconds(state == Recording::State::CountingDown ? qulonglong(recording->Seconds()) : 0);
    countdown->setVisible(state == Recording::State::CountingDown);
    SetTextBesideIcon(recordButton, idle ? tr("Record") : tr("End"));
    recordButton->setIcon(ZStyleSheet::icon(idle ? "record" : "stop"));
    recordButton->setToolTip(idle ? tr("Starts to record after a countdown") : tr("Ends the recording"));
    recordButton->setEnabled(model->GetStatus() == RecorderModel::Status::Running);
    const char* dot = "";
    if (state == Recording::State::Running)
        dot = "recording";
    else if (model->GetStatus() == RecorderModel::Status::Running)
        dot = "live";
    Util::ApplyWidgetStyle(stateDot, dot, "state");
    statusText->setOriginalText(StatusText());
}

void RecorderView::ShowStatus()
{
    const RecorderModel::Status status = model->GetStatus();
    const bool runs = status == RecorderModel::Status::Running;
    if (!runs) {
        stream->StopStream();
        stage->SetLive(false);
        recording->Stop();
    }
    stage->SetIdleText(runs ? tr("Waiting for the picture") : tr("No picture"));
    snapshot->setVisible(CanHaveSnapshot());
    ShowRecording();

    SetTextBesideIcon(runButton, runs ? tr("Stop") : tr("Start"));
    runButton->setIcon(runs ? ZStyleSheet::icon("stop") : ZStyleSheet::iconOnAccent("play"));
    Util::ApplyWidgetStyle(runButton, runs ? QStringLiteral("running") : QStringLiteral("stopped"), "state");

    errorText->setText(ErrorText());
    const bool failed = status == RecorderModel::Status::Failed;
    if (failed && errorBanner->isHidden()) {
        errorBanner->show();
        QAccessibleEvent alert(errorText, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
    errorBanner->setVisible(failed);
}

// Only for cameras: a thumbnail of the screen would contain itself.
bool RecorderView::CanHaveSnapshot() const
{
    const auto device = model->CurrentDevice();
    return model->GetStatus() == RecorderModel::Status::Running && device &&
           device->GetKind() != StandIn::CaptureDevice::Kind::Screen;
}

QString RecorderView::StatusText() const
{
    const QString source =
        tr("%1 · %2 · %3 fps")
            .arg(model->CurrentDeviceName(), model->CurrentMode(), FrameRateText(model->CurrentFrameRate()));
    switch (model->GetStatus()) {
    case RecorderModel::Status::Running:
        if (recording->GetState() == Recording::State::Running)
            return tr("Recording %1 · %2").arg(DurationText(recording->Seconds()), source);
        return source;
    case RecorderModel::Status::Stopped:
        return tr("Stopped · %1").arg(source);
    case RecorderModel::Status::Failed:
        break;
    }
    return tr("No picture · %1").arg(model->CurrentDeviceName());
}

QString RecorderView::ErrorText() const
{
    const auto device = model->CurrentDevice();
    if (device && device->GetKind() == StandIn::CaptureDevice::Kind::Camera)
        return tr("The camera could not be opened. Check that it is connected and that no other program uses it, then "
                  "start again.");
    return tr("The source could not be opened. Choose another one, or start again.");
}

void RecorderView::Retranslate()
{
    SetTextBesideIcon(sourceButton, tr("Source"));
    sourceButton->setToolTip(tr("Chooses what is shown"));
    SetTextBesideIcon(audioButton, tr("Audio"));
    audioButton->setToolTip(tr("Sets how loud microphone and system are"));
    settingsButton->setToolTip(tr("Settings of the device"));
    settingsButton->setAccessibleName(tr("Settings of the device"));
    stage->Preview()->setAccessibleName(tr("Live picture"));
    // Keeps the width for all texts of the buttons.
    recordButton->setMinimumWidth(0);
    SetTextBesideIcon(recordButton, tr("End"));
    const int width = recordButton->sizeHint().width();
    SetTextBesideIcon(recordButton, tr("Record"));
    recordButton->setMinimumWidth(qMax(width, recordButton->sizeHint().width()));
    ShowStatus();
}

void RecorderView::FocusRecordButton()
{
    recordButton->setFocus();
}

void RecorderView::ShowFirstHint()
{
    ShowSourceHint(sourceButton);
}

void RecorderView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous() && model->GetStatus() == RecorderModel::Status::Running)
        RunPicture();
}

void RecorderView::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    recording->Stop();
    stream->StopStream();
    stage->SetLive(false);
}

void RecorderView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
}

} // namespace Zelkor::Recorder
