#pragma once

#include <QWidget>

class QFrame;
class QLabel;
class QToolButton;
class ZLabel;

namespace Zelkor::Vx {
class WebCameraPreviewStream;
namespace UI {
class ButtonWithPopUpContainer;
}
} // namespace Zelkor::Vx

namespace Zelkor::Gallery {

class CaptureBar;
class PreviewStage;
class RecorderModel;
class Snapshot;

/// The recorder: a large live picture, what it shows above, and the controls below. A window, or a page of another one.
///
/// The picture runs while the view is visible and the model wants it. The model has to outlive the view.
class RecorderView : public QWidget
{
    Q_OBJECT

public:
    /// A window offers to go to the widgets, a page does not.
    enum class Role { Window, Page };

    RecorderView(RecorderModel* model, Role role, QWidget* parent = nullptr);

    /// Tells somebody who is here for the first time where to begin. The view has to be visible.
    void ShowFirstHint();

Q_SIGNALS:
    /// The person wants to see the widgets.
    void WidgetsRequested();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* CreateHeader(Role role);
    QWidget* CreateToolBar();
    Vx::UI::ButtonWithPopUpContainer* CreatePanelButton(const QString& icon, QWidget* panel);
    void CreateErrorBanner();
    void CoverStage();
    void RunPicture();
    void ToggleRunning();
    bool CanHaveSnapshot() const;
    void ShowStatus();
    QString StatusText() const;
    QString ErrorText() const;
    void Retranslate();

    RecorderModel* model;
    PreviewStage* stage;
    CaptureBar* captureBar;
    Vx::WebCameraPreviewStream* stream;
    QLabel* productName;
    QWidget* stateDot;
    ZLabel* statusText;
    QToolButton* widgetsButton;
    Snapshot* snapshot;
    QFrame* errorBanner;
    QLabel* errorText;
    Vx::UI::ButtonWithPopUpContainer* sourceButton;
    Vx::UI::ButtonWithPopUpContainer* audioButton;
    QToolButton* settingsButton;
    QToolButton* runButton;
};

} // namespace Zelkor::Gallery
