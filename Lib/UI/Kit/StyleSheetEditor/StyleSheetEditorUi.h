#pragma once

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

class StyleSheetTextEdit;
class StyleSheetTargetComboBox;
class MessageLabel;
class SaveChangesBar;
class SearchBar;

/// The parts of the style sheet editor's window, and where they lie. They do nothing by themselves.
class StyleSheetEditorUi
{
public:
    /// The parts belong to the window.
    explicit StyleSheetEditorUi(QWidget* window);

    /// Gives every part its text in the language of the application.
    void retranslate();

    /// What the window says; marked when it is about something that is wrong.
    void say(std::function<QString()> message, bool isProblem);

    StyleSheetTextEdit* editor;
    SearchBar* search;
    SaveChangesBar* question;
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
