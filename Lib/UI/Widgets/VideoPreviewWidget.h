#pragma once

#include <UI/Common/Export.h>

#include <Zelkor/Proc/IDataVideo.h>

#include <QFrame>
#include <QImage>

#include <memory>

namespace Zelkor::Vx {
class PreviewGate;
}

namespace Zelkor::Vx::UI {

/// Shows live video frames in an area of fixed size.
///
/// A frame larger than the area is shrunk to fit, a smaller one keeps its size; it is drawn in the centre. Without a
/// frame the default image shows, at its own size, centred or, when it is larger, cut at the right and the bottom.
/// Around the picture is what the style sheet paints as background; the frame lines of `QFrame` are not drawn.
///
/// GUI thread, except `UpdateView` and `ResetPreview`, which any thread may call. A caller on another thread must stop
/// before the widget and the application object are destroyed; `WebCameraPreviewStream` does.
class VX_WIDGETS_EXPORT VideoPreviewWidget : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int previewWidth READ GetPreviewWidth WRITE SetPreviewWidth)
    Q_PROPERTY(int previewHeight READ GetPreviewHeight WRITE SetPreviewHeight)
    Q_PROPERTY(QImage defaultImage READ GetDefaultImage WRITE SetDefaultImage)

public:
    explicit VideoPreviewWidget(QWidget* parent);
    ~VideoPreviewWidget() override;

    /// The size of the area in pixels, 0 by default; the widget's own size is fixed to it. A new size holds for the
    /// frames and default images to come, those that are set stay where they are.
    int GetPreviewWidth() const;
    void SetPreviewWidth(int width);
    int GetPreviewHeight() const;
    void SetPreviewHeight(int height);

    /// The picture that shows when there is no frame; null by default. Setting it ends the frame that shows.
    QImage GetDefaultImage() const;
    void SetDefaultImage(QImage image);

    /// Shows the default image again. Any thread.
    void ResetPreview();

    /// Shows one frame; a null frame resets the preview. Any thread; the picture appears with the next paint, and of
    /// frames that come faster than paints the newest appears. A frame that the media core cannot read shows the
    /// default image.
    void UpdateView(const boost::intrusive_ptr<Proc::IDataVideo>& frame);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    friend class Vx::PreviewGate;

    unsigned GetRevision() const;

    struct Q_DECL_HIDDEN Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::Vx::UI
