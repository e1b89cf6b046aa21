#pragma once

#include <QPlainTextEdit>
#include <QVector>

/// A code editor with line numbers, a highlighted current line, marks and indentation by spaces.
///
/// Tab inserts spaces up to the next tab stop or indents the selected lines; Shift+Tab unindents them. Return keeps the
/// indentation and adds a level after "{"; a "}" at the start of a line removes one. Ctrl+Tab moves the focus. Code is
/// laid out from left to right in every layout direction. GUI thread only.
class ZCodeEditor : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(int indentWidth READ indentWidth WRITE setIndentWidth)

public:
    /// A message about a place in the text.
    struct Mark
    {
        int position;    ///< character index in the text
        QString message; ///< tool tip of the mark
    };

    explicit ZCodeEditor(QWidget* parent = nullptr);

    /// Characters per level of indentation, at least 1; 4 by default.
    int indentWidth() const { return indent; }
    void setIndentWidth(int width);

    /// Marks are shown in the margin beside their line and underline the word at their position. Positions are clamped
    /// to the text.
    const QVector<Mark>& marks() const { return markList; }
    void setMarks(const QVector<Mark>& marks);

    /// Moves the cursor to a character and scrolls it to the centre.
    void goTo(int position);

    /// Returns the width of the margin in pixels.
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
