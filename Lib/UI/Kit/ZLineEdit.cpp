#include <UI/Kit/ZLineEdit.h>

#include <UI/Common/TextMarks.h>

#include <QAccessible>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QStyleOptionFrame>
#include <QToolButton>
#include <QToolTip>
#include <QValidator>

#include <algorithm>

using namespace Zelkor::Vx::UI;

namespace {

// Margins of QLineEdit around its text, in addition to those of the style.
constexpr int HORIZONTAL_MARGIN = 2;
constexpr int VERTICAL_MARGIN = 1;

// Returns whether assistive technology is active. QAccessible::isActive() asks the platform, which does not know
// whether the application activated it.
bool IsAccessibilityActive()
{
    struct Observer : QAccessible::ActivationObserver
    {
        bool isActive = QAccessible::isActive();

        Observer() { QAccessible::installActivationObserver(this); }
        ~Observer() { QAccessible::removeActivationObserver(this); }
        void accessibilityActiveChanged(bool active) override { isActive = active; }
    };
    static Observer observer;
    return observer.isActive;
}

int CommonBeginning(const QString& a, const QString& b)
{
    const auto ends = std::mismatch(a.begin(), a.begin() + std::min(a.size(), b.size()), b.begin());
    return int(ends.first - a.begin());
}

int CommonEnd(const QString& a, const QString& b, int longest)
{
    const auto ends = std::mismatch(a.rbegin(), a.rbegin() + longest, b.rbegin());
    return int(ends.first - a.rbegin());
}

// Converts a position in the displayed text to one in the whole text. The ellipsis stands for all that is cut off.
int PlaceInWhole(const QString& shown, const QString& whole, int place)
{
    const int lead = shown.startsWith(Common::LEFT_TO_RIGHT_EMBEDDING) ? 1 : 0;
    const int kept = CommonBeginning(shown.mid(lead), whole);
    return place <= lead + kept ? std::max(0, place - lead) : whole.size();
}

// Returns the whole text after the displayed one was edited in one place.
QString WithEdit(const QString& shown, const QString& edited, const QString& whole)
{
    const int begin = CommonBeginning(shown, edited);
    const int end = CommonEnd(shown, edited, std::min(shown.size(), edited.size()) - begin);
    return whole.left(PlaceInWhole(shown, whole, begin)) + edited.mid(begin, edited.size() - begin - end) +
           whole.mid(PlaceInWhole(shown, whole, shown.size() - end));
}

} // namespace

ZLineEdit::ZLineEdit(QWidget* parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this, &ZLineEdit::handleTextSetByCode);
    connect(this, &QLineEdit::selectionChanged, this, &ZLineEdit::extendSelection);
}

QString ZLineEdit::originalText() const
{
    return Common::WithoutEmbedding(storedText);
}

void ZLineEdit::setOriginalText(const QString& text)
{
    if (originalText() == text)
        return;
    storedText = Common::Embed(text);
    refreshText();
    Q_EMIT originalTextChanged(text);
}

void ZLineEdit::setEliding(bool on)
{
    eliding = on;
}

bool ZLineEdit::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::DragEnter:
        displayWholeText();
        break;
    case QEvent::DragLeave:
    case QEvent::Drop:
        refreshTextLater();
        break;
    case QEvent::ToolTip:
        // Removes the tool tip if the echo mode changed to a password.
        if (!isWhole)
            refreshText();
        if (toolTip().isEmpty() && paintsElided(textArea())) {
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), storedText, this);
            return true;
        }
        break;
    default:
        break;
    }
    return QLineEdit::event(event);
}

void ZLineEdit::focusInEvent(QFocusEvent* event)
{
    // Keeps cursor and selection when a menu closes or the window is activated again.
    const bool isResumed =
        isWhole && (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason);
    focused = true;
    if (!isResumed)
        refreshText();
    QLineEdit::focusInEvent(event);
}

void ZLineEdit::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() == Qt::PopupFocusReason) {
        QLineEdit::focusOutEvent(event);
        return;
    }
    focused = false;
    const QPointer<ZLineEdit> self(this);
    const bool keepWhole = event->reason() == Qt::ActiveWindowFocusReason;
    commitTypedText(keepWhole);
    if (!self)
        return;
    // Queued, so that slots of editingFinished() get the whole text.
    if (isWhole && !keepWhole)
        refreshTextLater();
    QLineEdit::focusOutEvent(event);
}

void ZLineEdit::resizeEvent(QResizeEvent* event)
{
    // With the focus, the text may contain input that is not reported yet.
    if (!focused)
        refreshText();
    QLineEdit::resizeEvent(event);
}

void ZLineEdit::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() != QEvent::FontChange || isWhole)
        return;
    const QString shown = text();
    const int place = cursorPosition();
    refreshText();
    // Keeps the cursor if the new font does not change the displayed text.
    if (text() == shown)
        setCursorPosition(place);
}

// Displays the text for the current state of the focus.
void ZLineEdit::refreshText()
{
    const QString shown =
        focused || !eliding ? storedText : fontMetrics().elidedText(storedText, Qt::ElideRight, width());
    const bool needsToolTip = shown != storedText && echoMode() == Normal;
    setToolTip(needsToolTip ? storedText : QString());
    isWhole = focused;
    put(mustContainWholeText(shown) ? originalText() : shown);
    setCursorPosition(0);
}

void ZLineEdit::refreshTextLater()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!focused)
                refreshText();
        },
        Qt::QueuedConnection);
}

void ZLineEdit::put(const QString& text)
{
    const QScopedValueRollback<bool> guard(refreshing, true);
    // Setting an equal text would clear the undo history.
    if (QLineEdit::text() != text)
        setText(text);
    displayedText = QLineEdit::text();
    displayedWithMask = inputMask();
}

// Displays the whole text without control characters, for editing without the focus.
void ZLineEdit::displayWholeText()
{
    if (isWhole)
        return;
    isWhole = true;
    const int place = PlaceInWhole(displayedText, originalText(), cursorPosition());
    put(originalText());
    setCursorPosition(place);
}

void ZLineEdit::commitTypedText(bool keepWhole)
{
    QString typed = text();
    if (typed == displayedText)
        return;
    if (validator() && !hasAcceptableInput()) {
        // QLineEdit does the same next; doing it here reports the edit once.
        QString fixed = typed;
        int cursor = 0;
        validator()->fixup(fixed);
        if (validator()->validate(fixed, cursor) == QValidator::Acceptable)
            typed = fixed;
    }
    const QString previous = originalText();
    storedText = Common::Embed(typed);
    displayedText = text();
    if (!keepWhole)
        refreshText();
    if (originalText() != previous)
        Q_EMIT originalTextChanged(originalText());
}

// Transfers a selection to the whole text, so that a copy contains all of it.
void ZLineEdit::extendSelection()
{
    if (refreshing || isWhole || !hasSelectedText())
        return;
    const QString shown = displayedText;
    const QString whole = originalText();
    const bool isBackward = cursorPosition() == selectionStart();
    const int begin = PlaceInWhole(shown, whole, selectionStart());
    const int end = PlaceInWhole(shown, whole, selectionEnd());
    displayWholeText();
    setSelection(isBackward ? end : begin, isBackward ? begin - end : end - begin);
}

// Handles changes of the text by code while the line edit does not have the focus.
void ZLineEdit::handleTextSetByCode(const QString& text)
{
    if (refreshing || focused)
        return;
    const bool isEdit = isModified();
    QString whole = Common::WithoutEmbedding(text);
    if (displayedText.size() > maxLength() || displayedWithMask != inputMask())
        whole = originalText(); // a new maximum length or mask changed the displayed text
    else if (isEdit && !isWhole)
        whole = WithEdit(displayedText, text, originalText());
    if (whole == originalText()) {
        refreshText();
    } else if (isEdit && isWhole) {
        // More keys may follow this one.
        storedText = Common::Embed(whole);
        displayedText = text;
        Q_EMIT originalTextChanged(whole);
    } else {
        setOriginalText(whole);
    }
}

// Otherwise control characters and the ellipsis would be validated, truncated or read out as part of the text.
bool ZLineEdit::mustContainWholeText(const QString& shown) const
{
    return focused || originalText().isEmpty() || echoMode() != Normal || validator() || !inputMask().isEmpty() ||
           shown.size() > maxLength() || IsAccessibilityActive();
}

bool ZLineEdit::paintsElided(const QRect& area) const
{
    return eliding && !isWhole && echoMode() == Normal && inputMask().isEmpty() && !hasSelectedText() &&
           fontMetrics().horizontalAdvance(storedText) > area.width();
}

// Returns the area of the text, without the buttons in the line edit.
QRect ZLineEdit::textArea() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    QRect area = style()->subElementRect(QStyle::SE_LineEditContents, &option, this).marginsRemoved(textMargins());
    const int centre = area.center().x();
    for (const QToolButton* button : findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!button->isVisible())
            continue;
        if (button->geometry().center().x() > centre)
            area.setRight(std::min(area.right(), button->x() - 1));
        else
            area.setLeft(std::max(area.left(), button->geometry().right() + 1));
    }
    return area.adjusted(HORIZONTAL_MARGIN, VERTICAL_MARGIN, -HORIZONTAL_MARGIN, -VERTICAL_MARGIN);
}

// `text()` is elided to the width of the line edit. Here it is elided again to the area without frame and buttons.
void ZLineEdit::paintEvent(QPaintEvent* event)
{
    const QRect area = textArea();
    if (!paintsElided(area)) {
        QLineEdit::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    painter.setClipRect(area);
    painter.setPen(palette().color(QPalette::Text));
    // As QLineEdit aligns its line.
    const Qt::Alignment vertical = alignment() & Qt::AlignVertical_Mask;
    const int free = area.height() - fontMetrics().height();
    const int above = vertical == Qt::AlignTop ? 0 : vertical == Qt::AlignBottom ? free : (free + 1) / 2;
    painter.drawText(area.adjusted(0, above, 0, free), Qt::AlignLeft | Qt::TextSingleLine | Qt::TextForceLeftToRight,
                     fontMetrics().elidedText(storedText, Qt::ElideRight, area.width()));
}
