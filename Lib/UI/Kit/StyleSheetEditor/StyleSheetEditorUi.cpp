#include <UI/Kit/StyleSheetEditor/StyleSheetEditorUi.h>

#include <UI/Kit/StyleSheetEditor/MessageLabel.h>
#include <UI/Kit/StyleSheetEditor/SaveChangesBar.h>
#include <UI/Kit/StyleSheetEditor/SearchBar.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetTargetComboBox.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetTextEdit.h>
#include <UI/Kit/StyleSheetEditor/ZRuntimeStylesheetEditor.h>

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>

#include <utility>

namespace Zelkor::Vx::UI::Kit {

namespace {

constexpr QSize SMALLEST_EDITOR(200, 80);
constexpr int MARGIN = 8;
constexpr int SPACING = 6;

// A command of the window and of the menu. Its keys hold within the window alone, which may be part of another one.
QAction* MakeAction(QWidget* window, QMenu* menu, const QList<QKeySequence>& keys)
{
    auto* action = new QAction(window);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    window->addAction(action);
    menu->addAction(action);
    return action;
}

QHBoxLayout* MakeRow()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(SPACING);
    return row;
}

} // namespace

StyleSheetEditorUi::StyleSheetEditorUi(QWidget* window)
    : editor(new StyleSheetTextEdit(window)), search(new SearchBar(editor)), question(new SaveChangesBar),
      targetBox(new StyleSheetTargetComboBox), pickButton(new QToolButton), typingBox(new QCheckBox),
      revertButton(new QPushButton), applyButton(new QPushButton), messageLabel(new MessageLabel),
      placeLabel(new QLabel), targetLabel(new QLabel)
{
    messageLabel->setObjectName(QStringLiteral("messageText"));
    placeLabel->setObjectName(QStringLiteral("placeText"));
    pickButton->setCheckable(true);
    targetLabel->setBuddy(targetBox);
    editor->setMinimumSize(SMALLEST_EDITOR);
    search->hide();
    auto* bar = new QMenuBar;
    bar->setNativeMenuBar(false);
    makeCommands(window, bar);
    layOut(window, bar);
}

void StyleSheetEditorUi::makeCommands(QWidget* window, QMenuBar* bar)
{
    fileMenu = bar->addMenu(QString());
    open = MakeAction(window, fileMenu, {QKeySequence::Open});
    save = MakeAction(window, fileMenu, {QKeySequence::Save});
    saveAs = MakeAction(window, fileMenu, {Qt::CTRL + Qt::SHIFT + Qt::Key_S});
    editMenu = bar->addMenu(QString());
    find = MakeAction(window, editMenu, {Qt::CTRL + Qt::Key_F, Qt::CTRL + Qt::Key_H});
    findNext = MakeAction(window, editMenu, {Qt::Key_F3});
    findPrevious = MakeAction(window, editMenu, {Qt::SHIFT + Qt::Key_F3});
    nextMistake = MakeAction(window, editMenu, {Qt::Key_F8});
    complete = MakeAction(window, editMenu, {Qt::CTRL + Qt::Key_Space});
    sheetMenu = bar->addMenu(QString());
    apply = MakeAction(window, sheetMenu, {Qt::CTRL + Qt::Key_Return, Qt::CTRL + Qt::Key_Enter});
    revert = MakeAction(window, sheetMenu, {Qt::CTRL + Qt::SHIFT + Qt::Key_R});
    read = MakeAction(window, sheetMenu, {Qt::Key_F5});
    pick = MakeAction(window, sheetMenu, {Qt::Key_F6});
}

void StyleSheetEditorUi::layOut(QWidget* window, QMenuBar* bar)
{
    QHBoxLayout* targetRow = MakeRow();
    targetRow->addWidget(targetLabel);
    targetRow->addWidget(targetBox, 1);
    targetRow->addWidget(pickButton);
    QHBoxLayout* statusRow = MakeRow();
    statusRow->addWidget(messageLabel, 1);
    statusRow->addWidget(placeLabel);
    QHBoxLayout* applyRow = MakeRow();
    applyRow->addWidget(typingBox);
    applyRow->addStretch();
    applyRow->addWidget(revertButton);
    applyRow->addWidget(applyButton);

    auto* rows = new QVBoxLayout;
    rows->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    rows->setSpacing(SPACING);
    rows->addLayout(targetRow);
    rows->addWidget(editor, 1);
    rows->addWidget(search);
    rows->addWidget(question);
    rows->addLayout(statusRow);
    rows->addLayout(applyRow);
    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setMenuBar(bar);
    layout->addLayout(rows);
}

void StyleSheetEditorUi::retranslate()
{
    fileMenu->setTitle(ZRuntimeStylesheetEditor::tr("&File"));
    open->setText(ZRuntimeStylesheetEditor::tr("&Open..."));
    save->setText(ZRuntimeStylesheetEditor::tr("&Save"));
    saveAs->setText(ZRuntimeStylesheetEditor::tr("Save &as..."));
    editMenu->setTitle(ZRuntimeStylesheetEditor::tr("&Edit"));
    find->setText(ZRuntimeStylesheetEditor::tr("&Find and replace"));
    findNext->setText(ZRuntimeStylesheetEditor::tr("Find &next"));
    findPrevious->setText(ZRuntimeStylesheetEditor::tr("Find &previous"));
    nextMistake->setText(ZRuntimeStylesheetEditor::tr("Next &mistake"));
    complete->setText(ZRuntimeStylesheetEditor::tr("&Complete"));
    sheetMenu->setTitle(ZRuntimeStylesheetEditor::tr("Style s&heet"));
    apply->setText(ZRuntimeStylesheetEditor::tr("&Apply"));
    revert->setText(ZRuntimeStylesheetEditor::tr("&Revert"));
    read->setText(ZRuntimeStylesheetEditor::tr("Read &from the target"));
    pick->setText(ZRuntimeStylesheetEditor::tr("&Pick a widget"));
    targetLabel->setText(ZRuntimeStylesheetEditor::tr("&Target:"));
    targetBox->setAccessibleName(ZRuntimeStylesheetEditor::tr("Target"));
    pickButton->setText(ZRuntimeStylesheetEditor::tr("Pick"));
    pickButton->setToolTip(ZRuntimeStylesheetEditor::tr("Choose a widget with the mouse"));
    typingBox->setText(ZRuntimeStylesheetEditor::tr("Apply while t&yping"));
    revertButton->setText(ZRuntimeStylesheetEditor::tr("&Revert"));
    applyButton->setText(ZRuntimeStylesheetEditor::tr("&Apply"));
    editor->setAccessibleName(ZRuntimeStylesheetEditor::tr("Style sheet"));
}

// A style sheet tells the two apart by the property "problem".
void StyleSheetEditorUi::say(std::function<QString()> message, bool isProblem)
{
    messageLabel->say(std::move(message));
    if (messageLabel->property("problem").toBool() == isProblem)
        return;
    messageLabel->setProperty("problem", isProblem);
    messageLabel->style()->unpolish(messageLabel);
    messageLabel->style()->polish(messageLabel);
}

} // namespace Zelkor::Vx::UI::Kit
