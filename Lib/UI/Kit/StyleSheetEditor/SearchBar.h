#pragma once

#include <QTextDocument>
#include <QWidget>

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QToolButton;

namespace Zelkor::Vx::UI::Kit {

class MessageLabel;

/// A bar to find and replace text in an editor. Selects matches, wraps around at either end of the text, and shows a
/// message if it wraps or finds nothing.
///
/// Return finds the next match, Shift+Return the previous one. Escape hides the bar and moves the focus to the editor.
class SearchBar : public QWidget
{
    Q_OBJECT

public:
    /// The editor must outlive the bar.
    explicit SearchBar(QPlainTextEdit* editor, QWidget* parent = nullptr);

    /// Shows and focuses the bar. A selection within one line becomes the search text.
    void open();

    void setSearchedText(const QString& text);
    void setReplacement(const QString& text);
    void setCaseSensitive(bool on);
    void setWholeWords(bool on);

    /// Returns the message about the last search.
    QString message() const;

public Q_SLOTS:
    /// Select the next or previous match from the selection. Return false if there is none.
    bool findNext();
    bool findPrevious();

    /// Replaces the selection if it is a match, and selects the next match.
    void replace();

    /// Replaces all matches in one undo step and returns their number.
    int replaceAll();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void retranslate();
    QTextDocument::FindFlags flags() const;
    bool find(const QTextCursor& from, QTextDocument::FindFlags direction);
    bool isMatchSelected() const;
    void shut();

    QPlainTextEdit* editor;
    QLineEdit* searched;
    QLineEdit* replacement;
    QToolButton* previousButton;
    QToolButton* nextButton;
    QPushButton* replaceButton;
    QPushButton* replaceAllButton;
    QPushButton* closeButton;
    QCheckBox* caseBox;
    QCheckBox* wordsBox;
    MessageLabel* messageLabel;
};

} // namespace Zelkor::Vx::UI::Kit
