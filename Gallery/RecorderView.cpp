#include "RecorderView.h"
#include "AudioPanel.h"
#include "CaptureBar.h"
#include "FirstHint.h"
#include "PreviewStage.h"
#include "RecorderModel.h"
#include "Snapshot.h"
#include "SourcePanel.h"
#include "StyleSheet.h"
#include "Texts.h"

#include <UI/Kit/ZLabel.h>
#include <UI/Widgets/ButtonWithPopUpContainer.h>
#include <UI/Widgets/VideoPreviewWidget.h>
#include <UI/Widgets/WebCameraPreviewStream.h>

#include <Zelkor/Util/WidgetStyle.h>

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

using Zelkor::Vx::WebCameraPreviewStream;
using Zelkor::Vx::UI::ButtonWithPopUpContainer;

namespace Zelkor::Gallery {

namespace {

constexpr int MARGIN = 16;
constexpr int SPACING = 12;
constexpr int SMALL_SPACING = 8;
constexpr int LOGO_SIZE = 24;
constexpr int BANNER_ICON_SIZE = 20;

QLabel* CreateIconLabel(const QString& objectName, const QString& icon, int size)
{
    auto* label = new QLabel;
    label->setObjectName(objectName);
    label->setPixmap(StyleIcon(icon).pixmap(size));
    label->setFixedSize(size, size);
    return label;
}

} // namespace

RecorderView::RecorderView(RecorderModel* model, Role role, QWidget* parent)
    : QWidget(parent), model(model), stage(new PreviewStage), stream(new WebCameraPreviewStream(stage->Preview()))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(MARGIN, SPACING, MARGIN, MARGIN);
    layout->setSpacing(SPACING);
    layout->addWidget(CreateHeader(role));
    layout->addWidget(stage, 1);
    captureBar = new CaptureBar(model);
    addActions(captureBar->actions());
    layout->addWidget(captureBar);
    layout->addWidget(CreateToolBar());
    CreateErrorBanner();
    CoverStage();
    setTabOrder(sourceButton, audioButton);
    setTabOrder(audioButton, settingsButton);
    setTabOrder(settingsButton, runButton);
    setTabOrder(runButton, widgetsButton);
    runButton->setFocus();

    connect(widgetsButton, &QToolButton::clicked, this, &RecorderView::WidgetsRequested);
    connect(runButton, &QToolButton::clicked, this, &RecorderView::ToggleRunning);
    connect(settingsButton, &QToolButton::clicked, stream, &WebCameraPreviewStream::ShowCurrentDeviceSettings);
    connect(stream, &WebCameraPreviewStream::WebCameraOpenError, model, &RecorderModel::ReportFailure);
    connect(model, &RecorderModel::RestartNeeded, this, &RecorderView::RunPicture);
    connect(model, &RecorderModel::StatusChanged, this, &RecorderView::ShowStatus);
    connect(model, &RecorderModel::OfferChanged, this, &RecorderView::ShowStatus);
    Retranslate();
}

QWidget* RecorderView::CreateHeader(Role role)
{
    auto* header = new QWidget;
    auto* layout = new QHBoxLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(SMALL_SPACING);
    productName = new QLabel;
    productName->setObjectName("productName");
    stateDot = new QFrame;
    stateDot->setObjectName("stateDot");
    statusText = new ZLabel;
    statusText->setObjectName("statusText");
    statusText->setClickable(false);
    AlignAtStart(statusText);
    statusText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    widgetsButton = new QToolButton;
    widgetsButton->setFocusPolicy(Qt::StrongFocus);
    widgetsButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    widgetsButton->setIcon(StyleIcon("grid"));
    widgetsButton->setVisible(role == Role::Window);

    layout->addWidget(CreateIconLabel("appIcon", "app", LOGO_SIZE));
    layout->addWidget(productName);
    layout->addSpacing(SPACING);
    layout->addWidget(stateDot);
    layout->addWidget(statusText, 1);
    layout->addWidget(widgetsButton);
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
    settingsButton->setIcon(StyleIcon("settings"));
    settingsButton->hide();
    runButton = new QToolButton;
    runButton->setObjectName("runButton");
    runButton->setFocusPolicy(Qt::StrongFocus);
    runButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);

    layout->addWidget(sourceButton);
    layout->addWidget(audioButton);
    layout->addWidget(settingsButton);
    layout->addStretch();
    layout->addWidget(runButton);
    return bar;
}

ButtonWithPopUpContainer* RecorderView::CreatePanelButton(const QString& icon, QWidget* panel)
{
    auto* button = new ButtonWithPopUpContainer;
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setIcon(StyleIcon(icon));
    // The bar is at the lower end of the window, and often of the screen.
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
    layout->addWidget(CreateIconLabel("errorIcon", "warning", BANNER_ICON_SIZE), 0, Qt::AlignTop);
    layout->addWidget(errorText, 1);
    errorBanner->hide();
}

// What lies over the picture, so that nothing moves when it comes.
void RecorderView::CoverStage()
{
    snapshot = new Snapshot(stage->Preview());
    snapshot->hide();
    auto* over = new QVBoxLayout(stage);
    over->setContentsMargins(SPACING, SPACING, SPACING, SPACING);
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

void RecorderView::ShowStatus()
{
    const RecorderModel::Status status = model->GetStatus();
    const bool runs = status == RecorderModel::Status::Running;
    if (!runs) {
        stream->StopStream();
        stage->SetLive(false);
    }
    stage->SetIdleText(runs ? tr("Waiting for the picture") : tr("No picture"));
    snapshot->setVisible(CanHaveSnapshot());
    Util::ApplyWidgetStyle(stateDot, runs ? QStringLiteral("live") : QString(), "state");
    statusText->setOriginalText(StatusText());

    SetTextBesideIcon(runButton, runs ? tr("Stop") : tr("Start"));
    runButton->setIcon(runs ? StyleIcon("stop") : StyleIconOnAccent("play"));
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

// The thumbnail is the person in front of the camera; of the screen, it would show itself.
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
    setWindowTitle(tr("Vx Recorder"));
    productName->setText(tr("Vx Recorder"));
    SetTextBesideIcon(widgetsButton, tr("Widgets…"));
    widgetsButton->setToolTip(tr("Shows all widgets, each in its states"));
    SetTextBesideIcon(sourceButton, tr("Source"));
    sourceButton->setToolTip(tr("Chooses what is shown"));
    SetTextBesideIcon(audioButton, tr("Audio"));
    audioButton->setToolTip(tr("Sets how loud microphone and system are"));
    settingsButton->setToolTip(tr("Settings of the device"));
    settingsButton->setAccessibleName(tr("Settings of the device"));
    stage->Preview()->setAccessibleName(tr("Live picture"));
    ShowStatus();
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
    stream->StopStream();
    stage->SetLive(false);
}

void RecorderView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
}

} // namespace Zelkor::Gallery
