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

// What QLineEdit keeps free around its text, beside the margins of its style.
constexpr int HORIZONTAL_MARGIN = 2;
constexpr int VERTICAL_MARGIN = 1;

// Whether somebody listens to the application, with a screen reader for instance. Qt asks the platform, which does not
// know of what the application itself has switched on.
bool IsReadOut()
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

// The place in the whole text for one in the text that is shown of it: the ellipsis stands for all that is cut off.
int PlaceInWhole(const QString& shown, const QString& whole, int place)
{
    const int lead = shown.startsWith(Common::LEFT_TO_RIGHT_EMBEDDING) ? 1 : 0;
    const int kept = CommonBeginning(shown.mid(lead), whole);
    return place <= lead + kept ? std::max(0, place - lead) : whole.size();
}

// The whole text after its shown one was edited, in one place, to be `edited`.
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
    connect(this, &QLineEdit::textChanged, this, &ZLineEdit::takeForeignChange);
    connect(this, &QLineEdit::selectionChanged, this, &ZLineEdit::takeSelection);
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
        showForUse();
        break;
    case QEvent::DragLeave:
    case QEvent::Drop:
        refreshLater();
        break;
    case QEvent::ToolTip:
        // A text that was made a password meanwhile must not be told.
        if (!inUse)
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
    // A menu that closes, or a window that is active again, finds all as it was left, cursor and selection too.
    const bool comesBack =
        inUse && (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason);
    focused = true;
    if (!comesBack)
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
    const bool staysInUse = event->reason() == Qt::ActiveWindowFocusReason;
    takeTyped(staysInUse);
    if (!self)
        return;
    // Not now: who takes the text when the editing is finished shall find it whole.
    if (inUse && !staysInUse)
        refreshLater();
    QLineEdit::focusOutEvent(event);
}

void ZLineEdit::resizeEvent(QResizeEvent* event)
{
    // With the focus, the text is in the hands of a person, and may be typed and not reported yet.
    if (!focused)
        refreshText();
    QLineEdit::resizeEvent(event);
}

void ZLineEdit::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() != QEvent::FontChange || inUse)
        return;
    const QString shown = text();
    const int place = cursorPosition();
    refreshText();
    // Where the text is the same in the other font, the cursor stays.
    if (text() == shown)
        setCursorPosition(place);
}

// Shows the text as it is shown with, or without, the focus.
void ZLineEdit::refreshText()
{
    const QString shown =
        focused || !eliding ? storedText : fontMetrics().elidedText(storedText, Qt::ElideRight, width());
    const bool tellsAll = shown == storedText || echoMode() != Normal;
    setToolTip(tellsAll ? QString() : storedText);
    inUse = focused;
    put(mustHoldWholeText(shown) ? originalText() : shown);
    setCursorPosition(0);
}

void ZLineEdit::refreshLater()
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
    // The same text set again would forget what can be undone.
    if (QLineEdit::text() != text)
        setText(text);
    displayedText = QLineEdit::text();
    displayedWithMask = inputMask();
}

// Has the whole text, without marks, for somebody who is about to take it apart without the focus.
void ZLineEdit::showForUse()
{
    if (inUse)
        return;
    inUse = true;
    const int place = PlaceInWhole(displayedText, originalText(), cursorPosition());
    put(originalText());
    setCursorPosition(place);
}

void ZLineEdit::takeTyped(bool staysInUse)
{
    QString typed = text();
    if (typed == displayedText)
        return;
    if (validator() && !hasAcceptableInput()) {
        // What QLineEdit is about to do, only that the edit is reported once.
        QString fixed = typed;
        int cursor = 0;
        validator()->fixup(fixed);
        if (validator()->validate(fixed, cursor) == QValidator::Acceptable)
            typed = fixed;
    }
    const QString previous = originalText();
    storedText = Common::Embed(typed);
    displayedText = text();
    if (!staysInUse)
        refreshText();
    if (originalText() != previous)
        Q_EMIT originalTextChanged(originalText());
}

// What is selected can be copied, so the selection goes over to the whole text.
void ZLineEdit::takeSelection()
{
    if (refreshing || inUse || !hasSelectedText())
        return;
    const QString shown = displayedText;
    const QString whole = originalText();
    const bool isBackward = cursorPosition() == selectionStart();
    const int begin = PlaceInWhole(shown, whole, selectionStart());
    const int end = PlaceInWhole(shown, whole, selectionEnd());
    showForUse();
    setSelection(isBackward ? end : begin, isBackward ? begin - end : end - begin);
}

// Without the focus, somebody changed the text of the line edit.
void ZLineEdit::takeForeignChange(const QString& text)
{
    if (refreshing || focused)
        return;
    const bool isEdit = isModified();
    QString whole = Common::WithoutEmbedding(text);
    if (displayedText.size() > maxLength() || displayedWithMask != inputMask())
        whole = originalText(); // a length or a mask was set, and took what is shown for the text
    else if (isEdit && !inUse)
        whole = WithEdit(displayedText, text, originalText());
    if (whole == originalText()) {
        refreshText();
    } else if (isEdit && inUse) {
        // More keys may follow this one.
        storedText = Common::Embed(whole);
        displayedText = text;
        Q_EMIT originalTextChanged(whole);
    } else {
        setOriginalText(whole);
    }
}

// Marks and an ellipsis would be judged, cut or read out as if they were of the text.
bool ZLineEdit::mustHoldWholeText(const QString& shown) const
{
    return focused || originalText().isEmpty() || echoMode() != Normal || validator() || !inputMask().isEmpty() ||
           shown.size() > maxLength() || IsReadOut();
}

bool ZLineEdit::paintsElided(const QRect& area) const
{
    return eliding && !inUse && echoMode() == Normal && inputMask().isEmpty() && !hasSelectedText() &&
           fontMetrics().horizontalAdvance(storedText) > area.width();
}

// The place for the text, beside the buttons in the line edit.
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

// The text that the line edit holds is elided to its width, of which frame and buttons take their part; so the picture
// is elided once more.
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
    // Where QLineEdit has its line.
    const Qt::Alignment vertical = alignment() & Qt::AlignVertical_Mask;
    const int free = area.height() - fontMetrics().height();
    const int above = vertical == Qt::AlignTop ? 0 : vertical == Qt::AlignBottom ? free : (free + 1) / 2;
    painter.drawText(area.adjusted(0, above, 0, free), Qt::AlignLeft | Qt::TextSingleLine | Qt::TextForceLeftToRight,
                     fontMetrics().elidedText(storedText, Qt::ElideRight, area.width()));
}
