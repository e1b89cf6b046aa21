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

constexpr int MINIMUM_PREFIX = 2;   ///< characters of a name after which completions are offered
constexpr int MAXIMUM_LINES = 1000; ///< maximum number of lines of a rule to parse

} // namespace

StyleSheetCompleter::StyleSheetCompleter(QPlainTextEdit* editor, const QWidget* except)
    : QObject(editor), editor(editor), except(except)
{
    // The insertion of a single character counts as typing; undo does not.
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

QStringList StyleSheetCompleter::completions() const
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

// A rule begins after a line that ends with a closing brace in the initial state of the highlighter.
QString StyleSheetCompleter::context() const
{
    const QTextCursor cursor = editor->textCursor();
    QTextBlock block = cursor.block();
    QStringList lines{block.text().left(cursor.positionInBlock())};
    for (block = block.previous(); block.isValid() && lines.size() < MAXIMUM_LINES; block = block.previous()) {
        if (block.userState() == 0 && block.text().trimmed().endsWith(QLatin1Char('}')))
            break;
        lines.prepend(block.text());
    }
    return lines.join(QLatin1Char('\n'));
}

// Filters the completions while a name is typed and closes the list after it.
void StyleSheetCompleter::follow()
{
    const bool wasTyped = std::exchange(typing, false);
    if (!isOpen()) {
        if (wasTyped)
            show(MINIMUM_PREFIX);
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

void StyleSheetCompleter::show(int minimumPrefix)
{
    const QString before = context();
    const QString prefix = before.right(StyleSheetVocabulary::PrefixLength(before));
    if (prefix.size() < minimumPrefix || editor->isReadOnly())
        return;
    if (!completer) {
        completer = new QCompleter(this);
        names = new QStringListModel(completer);
        completer->setModel(names);
        completer->setWidget(editor);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setModelSorting(QCompleter::CaseInsensitivelySortedModel);
        connect(completer, qOverload<const QString&>(&QCompleter::activated), this, &StyleSheetCompleter::insert);
        // Installed after the filter of QCompleter and therefore called before it.
        completer->popup()->installEventFilter(this);
    }
    names->setStringList(
        StyleSheetVocabulary::Completions(before, StyleSheetVocabulary::Collect(except), declarationsOnly));
    completer->setCompletionPrefix(prefix);
    const bool isWhole = completer->completionCount() == 1 && completer->currentCompletion() == prefix;
    if (completer->completionCount() == 0 || (isWhole && minimumPrefix > 0))
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

// Handles the keys before the editor breaks or indents the line.
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
