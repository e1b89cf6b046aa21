#include <UI/Kit/StyleSheetEditor/StyleSheetTextEdit.h>

#include <UI/Kit/StyleSheetEditor/LineEndings.h>
#include <UI/Kit/StyleSheetEditor/QtStyleSheetParser.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetCompleter.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetHighlighter.h>

#include <algorithm>

namespace Zelkor::Vx::UI::Kit {

using StyleSheetChecker::Mistake;

namespace {

constexpr int MAXIMUM_MARKS = 100; ///< limits the time for a file that is not a style sheet
constexpr int LIGHT_TEXT = 128;    ///< of 255; lighter text is on a dark background

} // namespace

StyleSheetTextEdit::StyleSheetTextEdit(const QWidget* except, QWidget* parent)
    : ZCodeEditor(parent), highlighter(new StyleSheetHighlighter(document())),
      completer(new StyleSheetCompleter(this, except))
{
    followColors();
}

void StyleSheetTextEdit::setScope(StyleSheetScope newScope)
{
    scope = newScope;
    check();
}

void StyleSheetTextEdit::check()
{
    const QString text = document()->toRawText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    found = StyleSheetChecker::Check(text, scope);
    // A warning of Qt would abort the application if warnings are fatal.
    const bool mayAsk = found.isEmpty() || !qEnvironmentVariableIsSet("QT_FATAL_WARNINGS");
    accepted = mayAsk && QtStyleSheetParser::IsAccepted(source(), scope);
    markMistakes();
    // Before its first semicolon, a declaration could be a selector.
    const bool declarationsOnly =
        scope == StyleSheetScope::WIDGET && text.contains(QLatin1Char(';')) && !text.contains(QLatin1Char('{'));
    highlighter->setDeclarationsOnly(declarationsOnly);
    completer->setDeclarationsOnly(declarationsOnly);
}

void StyleSheetTextEdit::markMistakes()
{
    QVector<Mark> marks;
    for (int i = 0; i < std::min(int(found.size()), MAXIMUM_MARKS); ++i)
        marks.append({found[i].position, StyleSheetChecker::Describe(found[i].problem)});
    setMarks(marks);
}

void StyleSheetTextEdit::goToNextMistake()
{
    if (found.isEmpty())
        return;
    const int here = textCursor().position();
    const auto next =
        std::find_if(found.cbegin(), found.cend(), [here](const Mistake& mistake) { return mistake.position > here; });
    goTo(next == found.cend() ? found.first().position : next->position);
    setFocus();
}

void StyleSheetTextEdit::loadText(const QString& text)
{
    original = text;
    setPlainText(text);
}

void StyleSheetTextEdit::replaceText(const QString& text)
{
    original = text;
    const int here = textCursor().position();
    QTextCursor cursor(document());
    cursor.select(QTextCursor::Document);
    cursor.insertText(text);
    cursor.setPosition(std::min(here, document()->characterCount() - 1));
    setTextCursor(cursor);
}

QString StyleSheetTextEdit::source() const
{
    return LineEndings::Restore(original, document()->toRawText());
}

void StyleSheetTextEdit::complete()
{
    completer->open();
}

// Uses the text colour of the enabled field, since the background may be an image.
void StyleSheetTextEdit::followColors()
{
    highlighter->setOnDark(palette().color(QPalette::Active, QPalette::Text).lightness() > LIGHT_TEXT);
}

void StyleSheetTextEdit::changeEvent(QEvent* event)
{
    ZCodeEditor::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        followColors();
}

void StyleSheetTextEdit::showEvent(QShowEvent* event)
{
    ZCodeEditor::showEvent(event);
    followColors();
}

} // namespace Zelkor::Vx::UI::Kit
