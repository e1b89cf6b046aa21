#pragma once

#include <UI/Common/Export.h>

#include <QColor>
#include <QImage>
#include <QSize>
#include <QWidget>

namespace Zelkor::Vx::UI {

/// Previews the highlight around the mouse cursor: a disc with a soft edge, on a framed checkerboard.
///
/// The widget has a fixed size, that of the checkerboard and the frame. The disc is centred and clipped; before the
/// first call of a slot there is none. Setting the value that is already set does not repaint. GUI thread only.
class VX_WIDGETS_EXPORT CursorHighlightPreviewWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int borderWidth READ GetBorderWidth WRITE SetBorderWidth)
    ///< width of the frame in pixels; default 1
    Q_PROPERTY(QColor borderColor READ GetBorderColor WRITE SetBorderColor)
    ///< colour of the frame; default dark grey

public:
    /// The size of the checkerboard, 84 by 84 pixels.
    static const QSize previewSize;

    explicit CursorHighlightPreviewWidget(QWidget* parent);
    ~CursorHighlightPreviewWidget() override;

    /// The radius of the disc in pixels, 0 by default.
    int GetRadius() const;

    /// The colour of the disc, black by default. Its alpha is the opacity at the centre.
    QColor GetColor();

    /// A width of 0 removes the frame. A negative one crops the checkerboard.
    int GetBorderWidth() const;
    void SetBorderWidth(int width);
    QColor GetBorderColor() const;
    void SetBorderColor(const QColor& color);

public Q_SLOTS:
    /// Sets the radius in pixels. Values up to 0 show no disc; values above 512 look like 512, since fading and edge
    /// are outside the widget.
    void SetRadius(int radius);

    /// Sets the radius to half the diameter, rounded towards zero.
    void SetDiameter(int diameter);

    void SetColor(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void UpdateImage();
    void UpdateSize();

    int radius = 0;
    QColor color = Qt::black;
    QImage image; ///< the disc
    int borderWidth = 1;
    QColor borderColor = Qt::darkGray;
};

} // namespace Zelkor::Vx::UI
