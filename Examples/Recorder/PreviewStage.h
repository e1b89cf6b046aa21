#pragma once

#include <QFrame>

namespace Zelkor::Vx::UI {
class VideoPreviewWidget;
}

namespace Zelkor::Recorder {

/// The place of a preview: keeps it as large as the place allows, in the shape of a screen, in the middle.
///
/// The preview draws the default image where it was when it was set, so the stage sets a new one for each size; as
/// that ends a live picture for a moment, it waits while one runs.
class PreviewStage : public QFrame
{
    Q_OBJECT

public:
    explicit PreviewStage(QWidget* parent = nullptr);

    Vx::UI::VideoPreviewWidget* Preview() const { return preview; }

    /// What the preview says when it has no picture.
    void SetIdleText(const QString& text);

    /// Whether a live picture runs. Without one the preview shows its default image.
    void SetLive(bool isLive);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// What lies over the preview does not decide about the height of the stage.
    bool hasHeightForWidth() const override { return false; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void RefreshDefaultImage();

    Vx::UI::VideoPreviewWidget* preview;
    QString idleText;
    bool live = false;
};

} // namespace Zelkor::Recorder
