#include <UI/Kit/StyleSheetEditor/StyleSheetEditorUi.h>

#include <UI/Kit/StyleSheetEditor/MessageLabel.h>
#include <UI/Kit/StyleSheetEditor/SaveChangesBar.h>
#include <UI/Kit/StyleSheetEditor/SearchBar.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetTargetComboBox.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetTextEdit.h>

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

// Adds a command to the window and the menu. Its shortcuts are limited to the window, which may be part of another one.
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
    : editor(new StyleSheetTextEdit(window)), search(new SearchBar(editor)), saveChangesBar(new SaveChangesBar),
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
    saveAs = MakeAction(window, fileMenu, {Qt::CTRL | Qt::SHIFT | Qt::Key_S});
    editMenu = bar->addMenu(QString());
    undo = MakeAction(window, editMenu, {QKeySequence::Undo});
    redo = MakeAction(window, editMenu, QKeySequence::keyBindings(QKeySequence::Redo));
    copy = MakeAction(window, editMenu, {QKeySequence::Copy});
    editMenu->addSeparator();
    find = MakeAction(window, editMenu, {Qt::CTRL | Qt::Key_F, Qt::CTRL | Qt::Key_H});
    findNext = MakeAction(window, editMenu, {Qt::Key_F3});
    findPrevious = MakeAction(window, editMenu, {Qt::SHIFT | Qt::Key_F3});
    nextMistake = MakeAction(window, editMenu, {Qt::Key_F8});
    complete = MakeAction(window, editMenu, {Qt::CTRL | Qt::Key_Space});
    sheetMenu = bar->addMenu(QString());
    apply = MakeAction(window, sheetMenu, {Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter});
    revert = MakeAction(window, sheetMenu, {Qt::CTRL | Qt::SHIFT | Qt::Key_R});
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
    rows->addWidget(saveChangesBar);
    rows->addLayout(statusRow);
    rows->addLayout(applyRow);
    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setMenuBar(bar);
    layout->addLayout(rows);
}

void StyleSheetEditorUi::retranslate()
{
    fileMenu->setTitle(tr("&File"));
    open->setText(tr("&Open..."));
    save->setText(tr("&Save"));
    saveAs->setText(tr("Save &as..."));
    editMenu->setTitle(tr("&Edit"));
    undo->setText(tr("&Undo"));
    redo->setText(tr("&Redo"));
    copy->setText(tr("C&opy"));
    find->setText(tr("&Find and replace"));
    findNext->setText(tr("Find &next"));
    findPrevious->setText(tr("Find &previous"));
    nextMistake->setText(tr("Next &mistake"));
    complete->setText(tr("&Complete"));
    sheetMenu->setTitle(tr("Style s&heet"));
    apply->setText(tr("&Apply"));
    revert->setText(tr("&Revert"));
    read->setText(tr("Read &from the target"));
    pick->setText(tr("&Pick a widget"));
    targetLabel->setText(tr("&Target:"));
    targetBox->setAccessibleName(tr("Target"));
    pickButton->setText(tr("Pick"));
    pickButton->setToolTip(tr("Choose a widget with the mouse"));
    typingBox->setText(tr("Apply while t&yping"));
    revertButton->setText(tr("&Revert"));
    applyButton->setText(tr("&Apply"));
    editor->setAccessibleName(tr("Style sheet"));
}

// Style sheets select by the dynamic property "problem".
void StyleSheetEditorUi::showMessage(std::function<QString()> message, bool isProblem)
{
    messageLabel->setMessage(std::move(message));
    if (messageLabel->property("problem").toBool() == isProblem)
        return;
    messageLabel->setProperty("problem", isProblem);
    messageLabel->style()->unpolish(messageLabel);
    messageLabel->style()->polish(messageLabel);
}

void StyleSheetEditorUi::showCursorPosition()
{
    const QTextCursor cursor = editor->textCursor();
    placeLabel->setText(tr("Line %1, column %2").arg(cursor.blockNumber() + 1).arg(cursor.positionInBlock() + 1));
}

QString StyleSheetEditorUi::mistakeSummary() const
{
    const auto& mistakes = editor->mistakes();
    if (mistakes.isEmpty())
        return {};
    const auto& first = mistakes.first();
    const QString place = tr("Line %1, column %2").arg(first.line).arg(first.column);
    const QString summary = tr("%1: %2").arg(place, StyleSheetChecker::Describe(first.problem));
    if (mistakes.size() == 1)
        return summary;
    return summary + QLatin1Char(' ') + tr("(and %n more)", nullptr, mistakes.size() - 1);
}

QFileDialog* StyleSheetEditorUi::makeFileDialog(QWidget* window, QFileDialog::AcceptMode mode,
                                                const QString& folder) const
{
    const bool saves = mode == QFileDialog::AcceptSave;
    auto* dialog = new QFileDialog(window, saves ? tr("Save the style sheet") : tr("Open a style sheet"), folder,
                                   tr("Style sheets (*.qss);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(mode);
    dialog->setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog->setDefaultSuffix(QStringLiteral("qss"));
    return dialog;
}

} // namespace Zelkor::Vx::UI::Kit
