#include <UI/Kit/StyleSheetEditor/SearchBar.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Kit/StyleSheetEditor/MessageLabel.h>

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

namespace Zelkor::Vx::UI::Kit {

namespace {

constexpr int SPACING = 4;

} // namespace

SearchBar::SearchBar(QPlainTextEdit* editor, QWidget* parent)
    : QWidget(parent), editor(editor), searched(new QLineEdit), replacement(new QLineEdit),
      previousButton(new QToolButton), nextButton(new QToolButton), replaceButton(new QPushButton),
      replaceAllButton(new QPushButton), closeButton(new QPushButton), caseBox(new QCheckBox), wordsBox(new QCheckBox),
      messageLabel(new MessageLabel)
{
    Common::AccessibleFactory<SearchBar, Common::AccessibleAs<QAccessible::Grouping>>::Install();
    previousButton->setText(QStringLiteral("\u2191"));
    nextButton->setText(QStringLiteral("\u2193"));
    messageLabel->setObjectName(QStringLiteral("searchMessage"));
    layOut();
    connect(previousButton, &QToolButton::clicked, this, &SearchBar::findPrevious);
    connect(nextButton, &QToolButton::clicked, this, &SearchBar::findNext);
    connect(replaceButton, &QPushButton::clicked, this, &SearchBar::replace);
    connect(replaceAllButton, &QPushButton::clicked, this, &SearchBar::replaceAll);
    connect(closeButton, &QPushButton::clicked, this, &SearchBar::shut);
    // A match at the start of the selection is found again while more of it is typed.
    connect(searched, &QLineEdit::textEdited, this, [this] {
        QTextCursor from = this->editor->textCursor();
        from.setPosition(from.selectionStart());
        find(from, {});
    });
    retranslate();
}

void SearchBar::layOut()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(SPACING);
    grid->addWidget(searched, 0, 0);
    grid->addWidget(previousButton, 0, 1);
    grid->addWidget(nextButton, 0, 2);
    grid->addWidget(closeButton, 0, 3);
    grid->addWidget(replacement, 1, 0);
    grid->addWidget(replaceButton, 1, 1, 1, 2);
    grid->addWidget(replaceAllButton, 1, 3);
    auto* boxes = new QHBoxLayout;
    boxes->setSpacing(2 * SPACING);
    boxes->addWidget(caseBox);
    boxes->addWidget(wordsBox);
    boxes->addWidget(messageLabel, 1);
    grid->addLayout(boxes, 2, 0, 1, 4);
    grid->setColumnStretch(0, 1);
    setTabOrder(searched, replacement);
    setTabOrder(replacement, previousButton);
}

void SearchBar::retranslate()
{
    const auto name = [](QWidget* widget, const QString& text) {
        widget->setAccessibleName(text);
        widget->setToolTip(text);
    };
    setAccessibleName(tr("Find"));
    searched->setPlaceholderText(tr("Find"));
    searched->setAccessibleName(tr("Find"));
    replacement->setPlaceholderText(tr("Replace with"));
    replacement->setAccessibleName(tr("Replace with"));
    name(previousButton, tr("Previous"));
    name(nextButton, tr("Next"));
    replaceButton->setText(tr("Re&place"));
    replaceAllButton->setText(tr("Replace a&ll"));
    closeButton->setText(tr("Cl&ose"));
    caseBox->setText(tr("&Match case"));
    wordsBox->setText(tr("&Whole words"));
}

void SearchBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void SearchBar::open()
{
    const QString selection = editor->textCursor().selectedText();
    if (!selection.isEmpty() && !selection.contains(QChar::ParagraphSeparator))
        searched->setText(selection);
    messageLabel->setMessage({});
    show();
    searched->setFocus();
    searched->selectAll();
}

void SearchBar::shut()
{
    hide();
    editor->setFocus();
}

void SearchBar::setSearchedText(const QString& text)
{
    searched->setText(text);
}

void SearchBar::setReplacement(const QString& text)
{
    replacement->setText(text);
}

void SearchBar::setCaseSensitive(bool on)
{
    caseBox->setChecked(on);
}

void SearchBar::setWholeWords(bool on)
{
    wordsBox->setChecked(on);
}

QString SearchBar::message() const
{
    return messageLabel->text();
}

QTextDocument::FindFlags SearchBar::flags() const
{
    QTextDocument::FindFlags flags;
    flags.setFlag(QTextDocument::FindCaseSensitively, caseBox->isChecked());
    flags.setFlag(QTextDocument::FindWholeWords, wordsBox->isChecked());
    return flags;
}

bool SearchBar::findNext()
{
    return find(editor->textCursor(), {});
}

bool SearchBar::findPrevious()
{
    return find(editor->textCursor(), QTextDocument::FindBackward);
}

bool SearchBar::find(const QTextCursor& from, QTextDocument::FindFlags direction)
{
    messageLabel->setMessage({});
    const QString text = searched->text();
    if (text.isEmpty())
        return false;
    QTextDocument* document = editor->document();
    QTextCursor match = document->find(text, from, flags() | direction);
    if (match.isNull()) {
        QTextCursor end(document);
        if (direction)
            end.movePosition(QTextCursor::End);
        match = document->find(text, end, flags() | direction);
        messageLabel->setMessage([isFound = !match.isNull(), direction] {
            if (!isFound)
                return tr("Nothing was found.");
            return direction ? tr("Found from the end on.") : tr("Found from the beginning on.");
        });
    }
    if (match.isNull())
        return false;
    editor->setTextCursor(match);
    return true;
}

bool SearchBar::isMatchSelected() const
{
    const QTextCursor selection = editor->textCursor();
    QTextCursor from = selection;
    from.setPosition(selection.selectionStart());
    const QTextCursor match = editor->document()->find(searched->text(), from, flags());
    return selection.hasSelection() && match.selectionStart() == selection.selectionStart() &&
           match.selectionEnd() == selection.selectionEnd();
}

void SearchBar::replace()
{
    if (!searched->text().isEmpty() && isMatchSelected())
        editor->textCursor().insertText(replacement->text());
    findNext();
}

int SearchBar::replaceAll()
{
    int count = 0;
    QTextDocument* document = editor->document();
    QTextCursor edit(document);
    edit.beginEditBlock();
    // Continues after each replacement, which may contain the search text.
    for (QTextCursor match = edit; !searched->text().isEmpty(); ++count) {
        match = document->find(searched->text(), match, flags());
        if (match.isNull())
            break;
        match.insertText(replacement->text());
    }
    edit.endEditBlock();
    messageLabel->setMessage(
        [count] { return count == 0 ? tr("Nothing was found.") : tr("%n replaced.", nullptr, count); });
    return count;
}

void SearchBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        shut();
    else if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QWidget::keyPressEvent(event);
    else if (event->modifiers().testFlag(Qt::ShiftModifier))
        findPrevious();
    else
        findNext();
}

} // namespace Zelkor::Vx::UI::Kit
