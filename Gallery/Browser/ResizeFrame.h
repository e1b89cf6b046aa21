#pragma once

#include <QLayoutItem>
#include <QPoint>
#include <QWidget>

namespace Zelkor::Gallery {

/// A layout item whose widget can be resized regardless of its size hint, within the limits of the widget.
class SizedItem : public QWidgetItem
{
public:
    /// `freed` are directions in which the widget has a fixed size that it may leave.
    SizedItem(QWidget* widget, Qt::Orientations freed) : QWidgetItem(widget), freed(freed) {}

    /// Sets the size; an invalid one restores the size hint, or the fixed size.
    void SetSize(const QSize& newSize);

    QSize Smallest() const;
    QSize Largest() const;

    QSize sizeHint() const override { return size.isValid() ? size : QWidgetItem::sizeHint(); }
    QSize minimumSize() const override { return size.isValid() ? size : QWidgetItem::minimumSize(); }
    bool hasHeightForWidth() const override { return !size.isValid() && QWidgetItem::hasHeightForWidth(); }

private:
    const Qt::Orientations freed;
    QSize size;
    QSize minimumBefore;
    QSize maximumBefore;
};

/// A frame around a widget with handles that resize it: right, bottom and corner, left instead of right in a
/// right-to-left layout. Arrow keys resize it as well. A double click and Backspace restore the size. Shows the size
/// meanwhile.
class ResizeFrame : public QWidget
{
    Q_OBJECT

public:
    /// The widget of `item` is a descendant of `parent`. The frame is deleted with that widget.
    ResizeFrame(SizedItem* item, QWidget* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect Handle(Qt::Orientations directions) const;
    Qt::Orientations HandleAt(const QPoint& place) const;
    void Resize(const QSize& size);
    void Follow();

    SizedItem* item;
    Qt::Orientations resizable; ///< the directions in which the widget is not fixed
    Qt::Orientations dragged;
    QPoint pressedAt; ///< global
    QSize sizeBefore;
};

} // namespace Zelkor::Gallery
