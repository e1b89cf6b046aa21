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

/// Finds and replaces in a text editor; lies below or above it. What is found is selected. A search goes on at the
/// other end of the text when it came to one, and says so, as it says when there is nothing.
///
/// Return finds the next place, Shift+Return the one before, Escape closes the bar and goes back to the editor.
class SearchBar : public QWidget
{
    Q_OBJECT

public:
    /// The editor has to outlive the bar.
    explicit SearchBar(QPlainTextEdit* editor, QWidget* parent = nullptr);

    /// Shows the bar and gives it the keyboard. A selection within one line becomes what is searched.
    void open();

    void setSearchedText(const QString& text);
    void setReplacement(const QString& text);
    void setCaseSensitive(bool on);
    void setWholeWords(bool on);

    /// What the bar says of the last search.
    QString message() const;

public Q_SLOTS:
    /// Selects the next place, from the selection on, or the one before it; false when there is none.
    bool findNext();
    bool findPrevious();

    /// Replaces the selection if it is such a place, and selects the next one.
    void replace();

    /// Replaces every place, which is undone in one step. Tells how many there were.
    int replaceAll();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void retranslate();
    QTextDocument::FindFlags flags() const;
    bool find(const QTextCursor& from, QTextDocument::FindFlags direction);
    bool selectsPlace() const;
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
