#pragma once

#include <QFrame>

/// A frame whose layout can be spaced by a style sheet.
///
/// The properties read and write the layout that is installed on the frame; the frame itself stores nothing. Without a
/// layout, or with one to which a property does not apply, a property reads -1 and ignores what is written. The frame
/// owns its layout and children as any widget does.
class ZFrame : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int layoutMargin READ layoutMargin WRITE setLayoutMargin)
    Q_PROPERTY(int layoutMarginLeft READ layoutMarginLeft WRITE setLayoutMarginLeft)
    Q_PROPERTY(int layoutMarginRight READ layoutMarginRight WRITE setLayoutMarginRight)
    Q_PROPERTY(int layoutMarginTop READ layoutMarginTop WRITE setLayoutMarginTop)
    Q_PROPERTY(int layoutMarginBottom READ layoutMarginBottom WRITE setLayoutMarginBottom)
    Q_PROPERTY(int layoutSpacing READ layoutSpacing WRITE setLayoutSpacing)
    Q_PROPERTY(int layoutHSpacing READ layoutHSpacing WRITE setLayoutHSpacing)
    Q_PROPERTY(int layoutVSpacing READ layoutVSpacing WRITE setLayoutVSpacing)

public:
    explicit ZFrame(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());

    /// The margin in pixels that all four sides have, -1 when they differ.
    int layoutMargin() const;
    void setLayoutMargin(int margin);

    int layoutMarginLeft() const;
    void setLayoutMarginLeft(int margin);
    int layoutMarginRight() const;
    void setLayoutMarginRight(int margin);
    int layoutMarginTop() const;
    void setLayoutMarginTop(int margin);
    int layoutMarginBottom() const;
    void setLayoutMarginBottom(int margin);

    /// The layout's one spacing in pixels, as `QLayout::spacing` has it.
    int layoutSpacing() const;
    void setLayoutSpacing(int spacing);

    /// The spacing between columns: of a grid, a form or a horizontal box.
    int layoutHSpacing() const;
    void setLayoutHSpacing(int spacing);

    /// The spacing between rows: of a grid, a form or a vertical box.
    int layoutVSpacing() const;
    void setLayoutVSpacing(int spacing);
};
