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

/// The recorder: a large live picture, a status line above it and the controls below.
///
/// The stream runs while the view is visible and the model's status is Running. The `actions()` are those of the
/// capture bar: add them to the window. Model and preferences must outlive the view.
class RecorderView : public QWidget
{
    Q_OBJECT

public:
    RecorderView(RecorderModel* model, const Preferences* preferences, QWidget* parent = nullptr);

    /// Sets the focus on the record button. The view has no focus proxy, because Tab would skip the widgets before it.
    void FocusRecordButton();

    /// Shows a hint for new users. The view must be visible.
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
