#pragma once

#include <UI/Common/Export.h>

#include <QFrame>
#include <QPixmap>

#include <memory>

namespace Zelkor::Vx {

/// Shows a picture that covers the whole widget.
///
/// Without a mask the picture is stretched. With a mask it is cropped to the aspect ratio of the widget instead, and an
/// elliptical mask makes a round thumbnail. The style sheet paints the background. The scaled picture is cached for
/// each size of the widget. GUI thread only.
class VX_WIDGETS_EXPORT PixmapWidget : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(MaskMode maskMode READ GetMaskMode WRITE SetMaskMode)
    ///< shape of the picture; default `MASK_NONE`
    Q_PROPERTY(MaskAnchor maskAnchor READ GetMaskAnchor WRITE SetMaskAnchor)
    ///< part of the picture that cropping keeps; default `ANCHOR_TOP_LEFT`
    Q_PROPERTY(QPixmap pixmap READ GetPixmap WRITE SetPixmap)
    ///< the picture; default null, which shows none

public:
    /// The shape of the picture.
    enum MaskMode : int {
        MASK_NONE,      ///< stretched to the widget; the default
        MASK_RECTANGLE, ///< cropped to the aspect ratio of the widget
        MASK_ELLIPSE,   ///< cropped likewise, and transparent outside the inscribed ellipse
    };
    Q_ENUM(MaskMode)

    /// The part of the picture that cropping keeps.
    enum MaskAnchor : int {
        ANCHOR_CENTER,       ///< the centre
        ANCHOR_TOP_LEFT,     ///< the top left corner; the default
        ANCHOR_TOP_RIGHT,    ///< the top right corner
        ANCHOR_BOTTOM_LEFT,  ///< the bottom left corner
        ANCHOR_BOTTOM_RIGHT, ///< the bottom right corner
    };
    Q_ENUM(MaskAnchor)

    explicit PixmapWidget(QWidget* parent, Qt::WindowFlags f = Qt::WindowFlags());
    ~PixmapWidget() override;

    MaskMode GetMaskMode() const;
    void SetMaskMode(MaskMode mode);

    /// Values outside the enumeration count as the top left corner.
    MaskAnchor GetMaskAnchor() const;
    void SetMaskAnchor(MaskAnchor anchor);

    /// The device pixel ratio of the picture is ignored.
    QPixmap GetPixmap() const;
    void SetPixmap(const QPixmap& pixmap);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Rebuild();

    struct Q_DECL_HIDDEN Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::Vx
