#pragma once

#include <QCoreApplication>
#include <QFileDialog>
#include <QString>

#include <functional>

class QAction;
class QCheckBox;
class QLabel;
class QMenu;
class QMenuBar;
class QPushButton;
class QToolButton;
class QWidget;

namespace Zelkor::Vx::UI::Kit {

class MessageLabel;
class SaveChangesBar;
class SearchBar;
class StyleSheetTargetComboBox;
class StyleSheetTextEdit;

/// Creates and lays out the widgets and actions of ZRuntimeStylesheetEditor, which connects them.
class StyleSheetEditorUi
{
    Q_DECLARE_TR_FUNCTIONS(ZRuntimeStylesheetEditor)

public:
    /// The window owns all widgets and actions.
    explicit StyleSheetEditorUi(QWidget* window);

    /// Sets all texts in the language of the application.
    void retranslate();

    /// Shows what `message` returns, again after a change of the language. `isProblem` highlights it.
    void showMessage(std::function<QString()> message, bool isProblem);

    /// Shows line and column of the text cursor.
    void showCursorPosition();

    /// Returns place and description of the first mistake in the text and the number of others; empty without mistakes.
    QString mistakeSummary() const;

    /// Returns a dialog that deletes itself when it is closed.
    QFileDialog* makeFileDialog(QWidget* window, QFileDialog::AcceptMode mode, const QString& folder) const;

    StyleSheetTextEdit* editor;
    SearchBar* search;
    SaveChangesBar* saveChangesBar;
    StyleSheetTargetComboBox* targetBox;
    QToolButton* pickButton;
    QCheckBox* typingBox;
    QPushButton* revertButton;
    QPushButton* applyButton;
    MessageLabel* messageLabel;
    QLabel* placeLabel;

    QAction* open;
    QAction* save;
    QAction* saveAs;
    QAction* undo;
    QAction* redo;
    QAction* copy;
    QAction* find;
    QAction* findNext;
    QAction* findPrevious;
    QAction* nextMistake;
    QAction* complete;
    QAction* apply;
    QAction* revert;
    QAction* read;
    QAction* pick;

private:
    void makeCommands(QWidget* window, QMenuBar* bar);
    void layOut(QWidget* window, QMenuBar* bar);

    QLabel* targetLabel;
    QMenu* fileMenu;
    QMenu* editMenu;
    QMenu* sheetMenu;
};

} // namespace Zelkor::Vx::UI::Kit
