#pragma once

#include <UI/Common/Export.h>

#include <QFrame>
#include <QPixmap>

#include <memory>

namespace Zelkor::Vx {

/// Shows one picture over the whole widget.
///
/// Without a mask the picture is stretched. With one it is first cut to the widget's shape, at the anchor, so that it
/// is never distorted, and for the ellipse only what lies inside the inscribed ellipse shows: a round thumbnail. Under
/// the picture is what the style sheet paints. The picture is scaled once for each size of the widget. GUI thread only.
class VX_WIDGETS_EXPORT PixmapWidget : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(MaskMode maskMode READ GetMaskMode WRITE SetMaskMode)
    Q_PROPERTY(MaskAnchor maskAnchor READ GetMaskAnchor WRITE SetMaskAnchor)
    Q_PROPERTY(QPixmap pixmap READ GetPixmap WRITE SetPixmap)

public:
    enum MaskMode : int {
        MASK_NONE,
        MASK_RECTANGLE,
        MASK_ELLIPSE,
    };
    Q_ENUM(MaskMode)

    /// The part of the picture that a cut keeps.
    enum MaskAnchor : int {
        ANCHOR_CENTER,
        ANCHOR_TOP_LEFT,
        ANCHOR_TOP_RIGHT,
        ANCHOR_BOTTOM_LEFT,
        ANCHOR_BOTTOM_RIGHT,
    };
    Q_ENUM(MaskAnchor)

    explicit PixmapWidget(QWidget* parent, Qt::WindowFlags f = Qt::WindowFlags());
    ~PixmapWidget() override;

    /// No mask by default.
    MaskMode GetMaskMode() const;
    void SetMaskMode(MaskMode mode);

    /// The top left corner by default.
    MaskAnchor GetMaskAnchor() const;
    void SetMaskAnchor(MaskAnchor anchor);

    /// The picture as it was set, null by default. Its own device pixel ratio does not count.
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
