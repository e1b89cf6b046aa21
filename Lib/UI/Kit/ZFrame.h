#pragma once

#include <QFrame>

/// A frame that makes the margins and spacing of its layout available to style sheets.
///
/// The properties read and write the installed layout, in pixels; the frame stores nothing. Without a layout, or with
/// one that a property does not apply to, the property is -1 and writing it is ignored. GUI thread only.
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

    int layoutMargin() const; ///< margin of all four sides; -1 if they differ
    void setLayoutMargin(int margin);

    int layoutMarginLeft() const; ///< left margin
    void setLayoutMarginLeft(int margin);
    int layoutMarginRight() const; ///< right margin
    void setLayoutMarginRight(int margin);
    int layoutMarginTop() const; ///< top margin
    void setLayoutMarginTop(int margin);
    int layoutMarginBottom() const; ///< bottom margin
    void setLayoutMarginBottom(int margin);

    /// Spacing as returned by `QLayout::spacing`.
    int layoutSpacing() const;
    void setLayoutSpacing(int spacing);

    /// Spacing between the columns of a grid, a form or a horizontal box.
    int layoutHSpacing() const;
    void setLayoutHSpacing(int spacing);

    /// Spacing between the rows of a grid, a form or a vertical box.
    int layoutVSpacing() const;
    void setLayoutVSpacing(int spacing);
};
