#pragma once

#include <QPlainTextEdit>
#include <QVector>

/// An editor for code: line numbers in a margin, the current line set off, marks at lines, and indentation with spaces.
///
/// Tab goes to the next stop, or indents the lines of a selection; Shift+Tab takes a step back. Return keeps the
/// indentation, one step deeper behind a "{"; a "}" that begins a line goes a step back. Ctrl+Tab leaves the editor, as
/// Tab does elsewhere. Code runs from left to right whatever the direction of the window.
class ZCodeEditor : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(int indentWidth READ indentWidth WRITE setIndentWidth)

public:
    /// Something to be seen to.
    struct Mark
    {
        int position; ///< characters before it in the text
        QString message;
    };

    explicit ZCodeEditor(QWidget* parent = nullptr);

    /// Characters of one step of indentation, from 1; 4 by default.
    int indentWidth() const { return indent; }
    void setIndentWidth(int width);

    /// Marks stand in the margin beside their line, and underline the text where they are. Positions beyond the text
    /// are taken as its end.
    const QVector<Mark>& marks() const { return markList; }
    void setMarks(const QVector<Mark>& marks);

    /// Puts the cursor there and shows it.
    void goTo(int position);

    /// Pixels.
    int marginWidth() const;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Margin;

    void paintMargin(const QRect& area);
    QString messageAt(int y) const;
    void layOutMargin();
    void refreshSelections();
    void applyFontMetrics();
    void moveLines(bool deeper);
    void breakLine();
    void closeBlock();

    Margin* margin;
    QVector<Mark> markList;
    int indent = 4;
};
