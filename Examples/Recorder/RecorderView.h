#pragma once

#include <QWidget>

class QFrame;
class QLabel;
class QToolButton;
class ZLabel;

namespace Zelkor::Vx {
class CountdownIndicatorWidget;
class WebCameraPreviewStream;
namespace UI {
class ButtonWithPopUpContainer;
}
} // namespace Zelkor::Vx

namespace Zelkor::Recorder {

class CaptureBar;
struct Preferences;
class PreviewStage;
class RecorderModel;
class Recording;
class Snapshot;

/// The recorder: a large live picture, what it shows above, and the controls below.
///
/// The picture runs while the view is visible and the model wants it. Its actions, which have shortcuts, are those of
/// the capture bar; a window adds them to itself. Model and preferences have to outlive the view.
class RecorderView : public QWidget
{
    Q_OBJECT

public:
    RecorderView(RecorderModel* model, const Preferences* preferences, QWidget* parent = nullptr);

    /// Gives the focus to the button that starts a recording. The view is no focus proxy: Tab goes straight to the
    /// proxy of a widget that it comes to, and would pass everything before it.
    void FocusRecordButton();

    /// Shows new users where to begin. The view must be visible.
    void ShowFirstHint();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* CreateHeader();
    QWidget* CreateToolBar();
    Vx::UI::ButtonWithPopUpContainer* CreatePanelButton(const QString& icon, QWidget* panel);
    void CreateErrorBanner();
    void CoverStage();
    void RunPicture();
    void ToggleRunning();
    void ToggleRecording();
    bool CanHaveSnapshot() const;
    void ShowStatus();
    void ShowRecording();
    QString StatusText() const;
    QString ErrorText() const;
    void Retranslate();

    RecorderModel* model;
    const Preferences* preferences;
    Recording* recording;
    PreviewStage* stage;
    CaptureBar* captureBar;
    Vx::WebCameraPreviewStream* stream;
    QWidget* stateDot;
    ZLabel* statusText;
    Snapshot* snapshot;
    QFrame* errorBanner;
    QLabel* errorText;
    Vx::CountdownIndicatorWidget* countdown;
    Vx::UI::ButtonWithPopUpContainer* sourceButton;
    Vx::UI::ButtonWithPopUpContainer* audioButton;
    QToolButton* settingsButton;
    QToolButton* runButton;
    QToolButton* recordButton;
};

} // namespace Zelkor::Recorder
