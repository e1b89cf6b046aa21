#pragma once

#include <UI/Common/Export.h>

#include <QColor>
#include <QImage>
#include <QSize>
#include <QWidget>

namespace Zelkor::Vx::UI {

/// Shows how the highlight around the mouse cursor will look: a disc with a soft edge on a checkerboard that makes its
/// transparency visible, in a frame.
///
/// The size is fixed to that of the checkerboard and the frame. The disc lies in the centre at its own size; one that
/// is larger is cut by the widget. There is none before the first call of a slot. GUI thread only.
class VX_WIDGETS_EXPORT CursorHighlightPreviewWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int borderWidth READ GetBorderWidth WRITE SetBorderWidth)
    Q_PROPERTY(QColor borderColor READ GetBorderColor WRITE SetBorderColor)

public:
    /// The checkerboard in pixels.
    static const QSize previewSize;

    explicit CursorHighlightPreviewWidget(QWidget* parent);
    ~CursorHighlightPreviewWidget() override;

    /// The disc's radius in pixels, 0 by default, and its colour, black by default, whose alpha is that of the centre.
    int GetRadius() const;
    QColor GetColor();

    /// The frame's width in pixels, 1 by default, and its colour, dark grey. With a width of 0 there is none; a
    /// negative one cuts as much from the checkerboard.
    int GetBorderWidth() const;
    void SetBorderWidth(int width);
    QColor GetBorderColor() const;
    void SetBorderColor(const QColor& color);

public Q_SLOTS:
    /// Any number is kept. With 0 and less there is no disc. Above 512 the disc is so large that its edge and its
    /// fading are far outside, so it is not made larger.
    void SetRadius(int radius);

    /// Sets the radius to half of this, rounded toward zero.
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
