#include <UI/Kit/StyleSheetEditor/StyleSheetCompleter.h>

#include <UI/Kit/StyleSheetEditor/StyleSheetTokenizer.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetVocabulary.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStringListModel>
#include <QTextBlock>

#include <utility>

namespace Zelkor::Vx::UI::Kit {

namespace {

constexpr int LETTERS = 2;       ///< after so many letters of a name, names are offered unasked
constexpr int MOST_LINES = 1000; ///< of a rule that are looked at

} // namespace

StyleSheetCompleter::StyleSheetCompleter(QPlainTextEdit* editor, const QWidget* except)
    : QObject(editor), editor(editor), except(except)
{
    // One letter that comes by itself was typed; undone and pasted ones are not.
    connect(editor->document(), &QTextDocument::contentsChange, this, [this](int position, int removed, int added) {
        const QTextDocument* document = this->editor->document();
        typing = removed == 0 && added == 1 && this->editor->hasFocus() && !document->isRedoAvailable() &&
                 StyleSheetTokenizer::IsNameLetter(document->characterAt(position));
    });
    connect(editor, &QPlainTextEdit::textChanged, this, &StyleSheetCompleter::follow);
}

bool StyleSheetCompleter::isOpen() const
{
    return completer && completer->popup()->isVisible();
}

QStringList StyleSheetCompleter::offered() const
{
    QStringList texts;
    for (int i = 0; isOpen() && i < completer->completionModel()->rowCount(); ++i)
        texts.append(completer->completionModel()->index(i, 0).data().toString());
    return texts;
}

void StyleSheetCompleter::open()
{
    show(0);
}

// A rule begins behind a line that ends with a brace and leaves nothing open, by the state that the highlighter keeps.
QString StyleSheetCompleter::context() const
{
    const QTextCursor cursor = editor->textCursor();
    QTextBlock block = cursor.block();
    QStringList lines{block.text().left(cursor.positionInBlock())};
    for (block = block.previous(); block.isValid() && lines.size() < MOST_LINES; block = block.previous()) {
        if (block.userState() == 0 && block.text().trimmed().endsWith(QLatin1Char('}')))
            break;
        lines.prepend(block.text());
    }
    return lines.join(QLatin1Char('\n'));
}

// What was offered is narrowed down while the name goes on, and taken away where it ends.
void StyleSheetCompleter::follow()
{
    const bool wasTyped = std::exchange(typing, false);
    if (!isOpen()) {
        if (wasTyped)
            show(LETTERS);
        return;
    }
    const QTextCursor cursor = editor->textCursor();
    const QString line = cursor.block().text().left(cursor.positionInBlock());
    const QString prefix = line.right(StyleSheetVocabulary::PrefixLength(line));
    completer->setCompletionPrefix(prefix);
    if (prefix.isEmpty() || completer->completionCount() == 0)
        completer->popup()->hide();
    else
        completer->popup()->setCurrentIndex(completer->completionModel()->index(0, 0));
}

void StyleSheetCompleter::show(int fewestLetters)
{
    const QString before = context();
    const QString prefix = before.right(StyleSheetVocabulary::PrefixLength(before));
    if (prefix.size() < fewestLetters || editor->isReadOnly())
        return;
    if (!completer) {
        completer = new QCompleter(this);
        names = new QStringListModel(completer);
        completer->setModel(names);
        completer->setWidget(editor);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setModelSorting(QCompleter::CaseInsensitivelySortedModel);
        connect(completer, qOverload<const QString&>(&QCompleter::activated), this, &StyleSheetCompleter::insert);
        // Installed after the completer's own filter, so it comes before that.
        completer->popup()->installEventFilter(this);
    }
    names->setStringList(
        StyleSheetVocabulary::Candidates(before, StyleSheetVocabulary::Collect(except), declarationsAlone));
    completer->setCompletionPrefix(prefix);
    const bool isWhole = completer->completionCount() == 1 && completer->currentCompletion() == prefix;
    if (completer->completionCount() == 0 || (isWhole && fewestLetters > 0))
        return;
    QRect place = editor->cursorRect();
    place.translate(editor->viewport()->pos());
    place.setWidth(completer->popup()->sizeHintForColumn(0) +
                   completer->popup()->verticalScrollBar()->sizeHint().width());
    completer->complete(place);
    completer->popup()->setCurrentIndex(completer->completionModel()->index(0, 0));
}

void StyleSheetCompleter::insert(const QString& name)
{
    QTextCursor cursor = editor->textCursor();
    const QString line = cursor.block().text().left(cursor.positionInBlock());
    cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, StyleSheetVocabulary::PrefixLength(line));
    cursor.insertText(name);
    editor->setTextCursor(cursor);
}

// The editor would break the line or indent it.
bool StyleSheetCompleter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && isOpen()) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool takes = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab;
        if (takes || key == Qt::Key_Escape) {
            const QString chosen = completer->popup()->currentIndex().data().toString();
            completer->popup()->hide();
            if (takes && !chosen.isEmpty())
                insert(chosen);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zelkor::Vx::UI::Kit
