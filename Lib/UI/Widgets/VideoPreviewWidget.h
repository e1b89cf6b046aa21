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
/// Frames are centred; one larger than the area is scaled down, keeping its aspect ratio. Without a frame, the default
/// image is shown at its own size, centred or, if larger, clipped at the right and bottom. The style sheet paints the
/// background; the frame of `QFrame` is not drawn.
///
/// GUI thread only, except `UpdateView` and `ResetPreview`, which any thread may call. Other threads must stop calling
/// before the widget or the application object is destroyed, as `WebCameraPreviewStream` does.
class VX_WIDGETS_EXPORT VideoPreviewWidget : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int previewWidth READ GetPreviewWidth WRITE SetPreviewWidth)
    ///< width of the area in pixels, to which the widget is fixed; default 0
    Q_PROPERTY(int previewHeight READ GetPreviewHeight WRITE SetPreviewHeight)
    ///< height of the area in pixels, to which the widget is fixed; default 0
    Q_PROPERTY(QImage defaultImage READ GetDefaultImage WRITE SetDefaultImage)
    ///< image shown without a frame; default null

public:
    explicit VideoPreviewWidget(QWidget* parent);
    ~VideoPreviewWidget() override;

    /// Clamped to 0..QWIDGETSIZE_MAX. A new size applies to later frames and default images; the current ones keep
    /// their rectangle.
    int GetPreviewWidth() const;
    void SetPreviewWidth(int width);
    int GetPreviewHeight() const;
    void SetPreviewHeight(int height);

    /// Setting the image also resets the preview.
    QImage GetDefaultImage() const;
    void SetDefaultImage(QImage image);

    /// Drops the frame and shows the default image. Any thread.
    void ResetPreview();

    /// Converts a frame and shows it with the next paint event; a null frame resets the preview. Any thread; blocks
    /// while another thread's frame is converted. Of frames that arrive faster than paint events, the newest is shown.
    /// A frame that the host cannot convert shows the default image.
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
