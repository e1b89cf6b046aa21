#include <UI/Kit/ZCodeEditor.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QHelpEvent>
#include <QPainter>
#include <QTextBlock>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int MARGIN_PADDING = 6;  ///< pixels at either side of a line number
constexpr int LINE_ALPHA = 20;     ///< opacity of the highlight of the current line, of 255
constexpr int NUMBER_ALPHA = 150;  ///< opacity of the numbers of other lines, of 255
constexpr int SMALLEST_DIGITS = 2; ///< keeps the margin from growing at line 10
constexpr int LONGEST_WAVE = 100;  ///< maximum number of underlined characters
constexpr QRgb MARK = 0xffe5484d;  ///< red with enough contrast on dark and light backgrounds

// Returns the leading white space of a line.
QString IndentationOf(const QString& line)
{
    const auto end = std::find_if(line.begin(), line.end(), [](QChar letter) { return !letter.isSpace(); });
    return line.left(static_cast<int>(end - line.begin()));
}

// Selects up to the next space or delimiter, at most LONGEST_WAVE characters. At the end of a line, selects the
// character before it.
QTextCursor WordAt(QTextDocument* document, int position)
{
    static const QString ENDS = QStringLiteral(" \t;,:{}");
    QTextCursor cursor(document);
    cursor.setPosition(qBound(0, position, document->characterCount() - 1));
    if (cursor.atBlockEnd()) {
        cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor);
        return cursor;
    }
    const int lineEnd = cursor.block().position() + cursor.block().length() - 1;
    const int limit = std::min(lineEnd, cursor.position() + LONGEST_WAVE);
    int end = cursor.position() + 1;
    while (end < limit && !ENDS.contains(document->characterAt(end - 1)) && !ENDS.contains(document->characterAt(end)))
        ++end;
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    return cursor;
}

QColor WithAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

} // namespace

class ZCodeEditor::Margin : public QWidget
{
public:
    explicit Margin(ZCodeEditor* editor) : QWidget(editor), editor(editor) {}

protected:
    void paintEvent(QPaintEvent* event) override { editor->paintMargin(event->rect()); }

    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::ToolTip)
            return QWidget::event(event);
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), editor->messageAt(help->y()), this);
        return true;
    }

private:
    ZCodeEditor* editor;
};

ZCodeEditor::ZCodeEditor(QWidget* parent) : QPlainTextEdit(parent), margin(new Margin(this))
{
    // Sets the family only, so that the size follows the application. Where the desktop has no fixed-pitch default, the
    // font system may provide one.
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    QFont family;
    family.setFamily(QFontInfo(fixed).fixedPitch() ? fixed.family() : QStringLiteral("monospace"));
    setFont(family);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setLayoutDirection(Qt::LeftToRight);
    QTextOption option = document()->defaultTextOption();
    option.setTextDirection(Qt::LeftToRight);
    document()->setDefaultTextOption(option);

    connect(this, &QPlainTextEdit::blockCountChanged, this, &ZCodeEditor::layOutMargin);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &ZCodeEditor::refreshSelections);
    connect(this, &QPlainTextEdit::updateRequest, margin, [this](const QRect& area, int dy) {
        if (dy)
            margin->scroll(0, dy);
        else
            margin->update(0, area.y(), margin->width(), area.height());
    });
    applyFontMetrics();
    refreshSelections();
}

void ZCodeEditor::setIndentWidth(int width)
{
    indent = std::max(1, width);
    applyFontMetrics();
}

void ZCodeEditor::setMarks(const QVector<Mark>& marks)
{
    markList = marks;
    refreshSelections();
}

void ZCodeEditor::goTo(int position)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(qBound(0, position, document()->characterCount() - 1));
    setTextCursor(cursor);
    centerCursor();
}

int ZCodeEditor::marginWidth() const
{
    const int digits = std::max(SMALLEST_DIGITS, int(QString::number(blockCount()).size()));
    return digits * fontMetrics().horizontalAdvance(QLatin1Char('9')) + 2 * MARGIN_PADDING;
}

void ZCodeEditor::applyFontMetrics()
{
    setTabStopDistance(indent * fontMetrics().horizontalAdvance(QLatin1Char(' ')));
    layOutMargin();
}

// Sets the margins on change only: setViewportMargins() may briefly add scroll bars.
void ZCodeEditor::layOutMargin()
{
    if (viewportMargins().left() != marginWidth())
        setViewportMargins(marginWidth(), 0, 0, 0);
    const QRect inside = contentsRect();
    margin->setGeometry(inside.left(), inside.top(), marginWidth(), viewport()->height());
    margin->update();
}

// Highlights the current line and underlines the marked words.
void ZCodeEditor::refreshSelections()
{
    QList<QTextEdit::ExtraSelection> selections;
    QTextEdit::ExtraSelection line;
    line.cursor = textCursor();
    line.cursor.clearSelection();
    line.format.setBackground(WithAlpha(palette().color(QPalette::Text), LINE_ALPHA));
    line.format.setProperty(QTextFormat::FullWidthSelection, true);
    selections.append(line);
    for (const Mark& mark : std::as_const(markList)) {
        QTextEdit::ExtraSelection wave;
        wave.cursor = WordAt(document(), mark.position);
        wave.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        wave.format.setUnderlineColor(QColor(MARK));
        selections.append(wave);
    }
    setExtraSelections(selections);
    margin->update();
}

QString ZCodeEditor::messageAt(int y) const
{
    const QTextBlock block = cursorForPosition(QPoint(0, y)).block();
    QStringList messages;
    for (const Mark& mark : markList) {
        if (document()->findBlock(qBound(0, mark.position, document()->characterCount() - 1)) == block)
            messages.append(mark.message);
    }
    return messages.join(QLatin1Char('\n'));
}

bool ZCodeEditor::event(QEvent* event)
{
    // Tab indents, so Ctrl+Tab moves the focus.
    if (event->type() == QEvent::KeyPress) {
        const auto* press = static_cast<QKeyEvent*>(event);
        const bool isBack = press->key() == Qt::Key_Backtab || press->modifiers().testFlag(Qt::ShiftModifier);
        if (press->modifiers().testFlag(Qt::ControlModifier) &&
            (press->key() == Qt::Key_Tab || press->key() == Qt::Key_Backtab)) {
            // QPlainTextEdit overrides this function and keeps the focus.
            QWidget::focusNextPrevChild(!isBack);
            return true;
        }
    }
    return QPlainTextEdit::event(event);
}

void ZCodeEditor::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        applyFontMetrics();
    // The colour of the current line is that of the text in the current state.
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange ||
        event->type() == QEvent::EnabledChange)
        refreshSelections();
}

void ZCodeEditor::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    layOutMargin();
}

void ZCodeEditor::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    if (isReadOnly() || !isPlain)
        QPlainTextEdit::keyPressEvent(event);
    else if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab)
        moveLines(event->key() == Qt::Key_Tab);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        breakLine();
    else if (event->text() == QLatin1String("}"))
        closeBlock();
    else
        QPlainTextEdit::keyPressEvent(event);
}

// Indents or unindents the selected lines. Without a selection, indenting inserts spaces up to the next tab stop.
void ZCodeEditor::moveLines(bool deeper)
{
    QTextCursor cursor = textCursor();
    if (deeper && !cursor.hasSelection()) {
        cursor.insertText(QString(indent - cursor.positionInBlock() % indent, QLatin1Char(' ')));
        setTextCursor(cursor);
        return;
    }
    QTextBlock block = document()->findBlock(cursor.selectionStart());
    // A selection that ends at the start of a line does not include that line.
    const int end = std::max(cursor.selectionStart(), cursor.selectionEnd() - 1);
    cursor.beginEditBlock();
    for (; block.isValid() && block.position() <= end; block = block.next()) {
        QTextCursor edit(block);
        if (deeper) {
            if (block.length() > 1)
                edit.insertText(QString(indent, QLatin1Char(' ')));
            continue;
        }
        const QString spaces = IndentationOf(block.text()).left(indent);
        const int tab = spaces.indexOf(QLatin1Char('\t'));
        edit.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, tab < 0 ? spaces.size() : tab + 1);
        edit.removeSelectedText();
    }
    cursor.endEditBlock();
}

void ZCodeEditor::breakLine()
{
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const QString before = cursor.block().text().left(cursor.positionInBlock());
    QString indentation = IndentationOf(before);
    if (before.trimmed().endsWith(QLatin1Char('{')))
        indentation += QString(indent, QLatin1Char(' '));
    cursor.insertBlock();
    cursor.insertText(indentation);
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

void ZCodeEditor::closeBlock()
{
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const QString before = cursor.block().text().left(cursor.positionInBlock());
    if (before.trimmed().isEmpty()) {
        const int step = before.endsWith(QLatin1Char('\t')) ? 1 : std::min(indent, int(before.size()));
        cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, step);
    }
    cursor.insertText(QStringLiteral("}"));
    cursor.endEditBlock();
    setTextCursor(cursor);
}

void ZCodeEditor::paintMargin(const QRect& area)
{
    QPainter painter(margin);
    painter.setFont(font());
    const QColor text = palette().color(QPalette::Text);
    QVector<int> markedLines;
    for (const Mark& mark : std::as_const(markList))
        markedLines.append(
            document()->findBlock(qBound(0, mark.position, document()->characterCount() - 1)).blockNumber());
    QRectF line = blockBoundingGeometry(firstVisibleBlock()).translated(contentOffset());
    for (QTextBlock block = firstVisibleBlock(); block.isValid() && line.top() <= area.bottom(); block = block.next()) {
        const QRectF place(0, line.top(), margin->width(), blockBoundingRect(block).height());
        const bool isMarked = markedLines.contains(block.blockNumber());
        const bool isCurrent = block == textCursor().block();
        if (isMarked)
            painter.fillRect(QRectF(place.topLeft(), QSizeF(MARGIN_PADDING / 2, place.height())), QColor(MARK));
        painter.setPen(isMarked ? QColor(MARK) : isCurrent ? text : WithAlpha(text, NUMBER_ALPHA));
        painter.drawText(place.adjusted(0, 0, -MARGIN_PADDING, 0),
                         Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter,
                         QString::number(block.blockNumber() + 1));
        line.moveTop(place.bottom());
    }
}
