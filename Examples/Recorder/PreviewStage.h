#pragma once

#include <QFrame>

namespace Zelkor::Vx::UI {
class VideoPreviewWidget;
}

namespace Zelkor::Recorder {

/// Centres a preview at the largest size with the aspect ratio of a screen.
///
/// The preview does not scale its default image, so the stage sets a new one for each size. That would interrupt a live
/// picture, so the stage waits while a stream runs.
class PreviewStage : public QFrame
{
    Q_OBJECT

public:
    explicit PreviewStage(QWidget* parent = nullptr);

    Vx::UI::VideoPreviewWidget* Preview() const { return preview; }

    /// Sets the text of the default image.
    void SetIdleText(const QString& text);

    /// Sets whether a stream runs. Otherwise the preview shows its default image.
    void SetLive(bool isLive);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Ignores the height-for-width of the widgets over the preview.
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
