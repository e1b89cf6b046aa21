#pragma once

#include <UI/Kit/Internal/WindowPart.h>

#include <QWidget>

namespace Zelkor::Vx::UI::Kit {

/// The edges and corners of a frameless window: a transparent child on top of the others, masked to a ring.
///
/// The left mouse button resizes the window by the window system or, where that is not supported, by this widget. The
/// border disappears while the window fills the screen, and does not take the mouse where the size is fixed. Style
/// sheets draw the outline of the window as a border of 1 pixel of "#resizeBorder".
class ResizeBorder : public QWidget
{
    Q_OBJECT

public:
    explicit ResizeBorder(QWidget* window);

    int thickness() const { return width; }
    void setThickness(int pixels);

    /// Follows size, state, flags and size limits of the window.
    void fit();

    /// Returns the edge or corner at a point of the window, otherwise `WindowPart::Client`.
    WindowPart partAt(const QPoint& point) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool isNeeded() const;
    int effectiveWidth() const;
    Qt::Edges edgesAt(const QPoint& point) const;
    QRegion outline() const;
    QRegion sensitiveRegion() const;

    QWidget* const window; ///< the parent
    int width = 6;
    Qt::Edges dragged;    ///< by this widget, instead of the window system
    QPoint pressPosition; ///< global
    QRect pressGeometry;  ///< of the window
};

} // namespace Zelkor::Vx::UI::Kit
