#include <UI/Kit/ZTimeEdit.h>

#include <UI/Kit/Internal/TimeFormat.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QStyle>

#include <algorithm>
#include <utility>

using namespace Zelkor::Vx::UI::Kit;

namespace {

const QString SHRINK_WIDTH = QStringLiteral("shrinkWidth");
constexpr char FORCE_MAXIMUM[] = "forceMaxtimeFormat";
constexpr int TEXT_MARGINS = 4; // margins of the line edit at both sides of its text
constexpr int LAST_MILLISECOND = 24 * 60 * 60 * 1000 - 1;
constexpr int HALF_DAY_HOURS = 12;

bool IsAfternoon(const QTime& time)
{
    return time.hour() >= HALF_DAY_HOURS;
}

QString WithLatinDigits(QString text)
{
    for (QChar& character : text) {
        if (character.isDigit())
            character = QChar('0' + character.digitValue());
    }
    return text;
}

// Qt writes two apostrophes as one, but does not parse them. A typographic apostrophe works both ways.
QString Readable(QString format)
{
    return format.replace(QLatin1String("''"), QString(QChar(0x2019)));
}

/// Replaces the digits in a part of the text by zeros.
QString WithZeros(QString text, int position, int length)
{
    const auto begin = text.begin() + position;
    std::replace_if(
        begin, begin + length, [](QChar character) { return character.isDigit(); }, QChar('0'));
    return text;
}

bool IsEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool IsDeletion(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete || event.matches(QKeySequence::Cut) ||
           event.matches(QKeySequence::DeleteEndOfLine) || event.matches(QKeySequence::DeleteCompleteLine);
}

/// Returns the digit that a key types, or -1.
int TypedDigit(const QKeyEvent& event)
{
    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return isCommand || event.text().size() != 1 ? -1 : event.text().front().digitValue();
}

} // namespace

ZTimeEdit::ZTimeEdit(QWidget* parent) : QTimeEdit(parent)
{
    watchCursor();
    // Qt would reverse the sections and the format.
    setLayoutDirection(Qt::LeftToRight);
    connect(this, SIGNAL(dateTimeChanged(const QDateTime&)), this, SLOT(updateStyle()));
    setWrapping(true);
    setFocusPolicy(Qt::StrongFocus);
}

// A cursor that leaves an incomplete section completes the time, which may choose another format. Qt determines the new
// section only afterwards, by the old format, so the new format is set later. Our own line edit allows connections both
// before and after that of Qt.
void ZTimeEdit::watchCursor()
{
    auto* edit = new QLineEdit(this);
    edit->setObjectName(lineEdit()->objectName());
    connect(edit, &QLineEdit::cursorPositionChanged, this, [this] { ++depthInQt; });
    setLineEdit(edit);
    connect(edit, &QLineEdit::cursorPositionChanged, this, &ZTimeEdit::finishHandlingByQt);
    // Fills the new line edit.
    setDisplayFormat(displayFormat());
}

void ZTimeEdit::finishHandlingByQt()
{
    if (--depthInQt == 0 && std::exchange(formatIsPending, false))
        updateStyle();
}

// Lets Qt handle an event without a change of the format. Returns false if the field was deleted.
bool ZTimeEdit::handleByQt(const std::function<void()>& handle)
{
    const QPointer<ZTimeEdit> self(this);
    ++depthInQt;
    handle();
    if (self)
        finishHandlingByQt();
    return self;
}

void ZTimeEdit::setStyleTag(const QString& tag)
{
    if (tag != currentStyleTag) {
        if (currentStyleTag == SHRINK_WIDTH) {
            setMinimumWidth(0);
            setMaximumWidth(QWIDGETSIZE_MAX);
        }
        currentStyleTag = tag;
        style()->unpolish(this);
        style()->polish(this);
        // Resets the size cached by the base class.
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(this, &change);
        updateGeometry();
    }
    updateStyle();
}

void ZTimeEdit::setDisplayFormatList(const QStringList& list)
{
    if (formats != list) {
        formats = list;
        distinctFormats = DistinctTimeFormats(list);
    }
    updateStyle();
}

void ZTimeEdit::setTimeClamped(const QTime& time)
{
    if (time.isValid())
        setTime(qBound(minimumTime(), time, maximumTime()));
}

void ZTimeEdit::stepBy(int steps)
{
    qint64 size = 0;
    switch (currentSection()) {
    case MSecSection:
        size = stepOfMilliseconds;
        break;
    case SecondSection:
        size = 1000;
        break;
    case MinuteSection:
        size = 60 * 1000;
        break;
    case HourSection:
        size = 60 * 60 * 1000;
        break;
    default:
        break;
    }
    const qint64 stepped = std::clamp<qint64>(time().msecsSinceStartOfDay() + size * steps, 0, LAST_MILLISECOND);
    const QPointer<ZTimeEdit> self(this);
    setTimeClamped(QTime::fromMSecsSinceStartOfDay(int(stepped)));
    if (self)
        updateStyle();
}

void ZTimeEdit::updateStyle()
{
    chooseFormat();
    if (currentStyleTag == SHRINK_WIDTH)
        setFixedWidth(fontMetrics().horizontalAdvance(lineEdit()->text()) + TEXT_MARGINS);
}

void ZTimeEdit::chooseFormat()
{
    const bool isForMaximum = hasFocus() || property(FORCE_MAXIMUM).toBool();
    const QString choice = ChooseTimeFormat(distinctFormats, isForMaximum ? maximumTime() : time());
    const QString format = Readable(choice.isEmpty() ? displayFormat() : choice);
    if (format == displayFormat())
        return;
    if (depthInQt > 0) {
        formatIsPending = true;
        return;
    }
    QLineEdit* edit = lineEdit();
    const int fromEnd = edit->text().size() - edit->cursorPosition();
    const QTime minimum = minimumTime();
    const QTime maximum = maximumTime();
    setDisplayFormat(format);
    // A new format makes Qt reset a range of a single time.
    if (minimum != minimumTime() || maximum != maximumTime())
        setTimeRange(minimum, maximum);
    edit->setCursorPosition(qMax(0, edit->text().size() - fromEnd));
}

// Parses a displayed text. Parts that the format does not show are those of the current time.
QTime ZTimeEdit::read(const QString& text) const
{
    const QTime shown = locale().toTime(text, displayFormat());
    if (!shown.isValid())
        return shown;
    const QTime previous = time();
    const Sections sections = displayedSections();
    int hour = shown.hour();
    if (!sections.testFlag(HourSection)) {
        const bool isAfternoon = sections.testFlag(AmPmSection) ? IsAfternoon(shown) : IsAfternoon(previous);
        hour = previous.hour() % HALF_DAY_HOURS + (isAfternoon ? HALF_DAY_HOURS : 0);
    }
    return QTime(hour, sections.testFlag(MinuteSection) ? shown.minute() : previous.minute(),
                 sections.testFlag(SecondSection) ? shown.second() : previous.second(),
                 sections.testFlag(MSecSection) ? shown.msec() : previous.msec());
}

// Qt writes native digits but parses Latin digits in every locale.
QString ZTimeEdit::textFromDateTime(const QDateTime& dateTime) const
{
    return WithLatinDigits(QTimeEdit::textFromDateTime(dateTime));
}

bool ZTimeEdit::event(QEvent* event)
{
    if (event->type() == QEvent::DynamicPropertyChange &&
        static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName() == FORCE_MAXIMUM)
        updateStyle();
    return QTimeEdit::event(event);
}

bool ZTimeEdit::focusNextPrevChild(bool next)
{
    bool moved = true;
    handleByQt([&] { moved = QTimeEdit::focusNextPrevChild(next); });
    return moved;
}

void ZTimeEdit::keyPressEvent(QKeyEvent* event)
{
    const int digit = TypedDigit(*event);
    if (digit >= 0) {
        QKeyEvent latin(event->type(), event->key(), event->modifiers(), QString::number(digit), event->isAutoRepeat());
        typeDigit(latin, digit);
        event->setAccepted(latin.isAccepted());
    } else if (!isReadOnly() && IsDeletion(*event) && lineEdit()->hasSelectedText()) {
        clearSelection(event->matches(QKeySequence::Cut));
    } else if (currentSection() == AmPmSection && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        setAfternoon(event->key() == Qt::Key_Up);
    } else {
        const QString before = lineEdit()->text();
        const QTime timeBefore = time();
        if (!handleByQt([&] { QTimeEdit::keyPressEvent(event); }))
            return;
        if (IsEnter(*event))
            finish();
        else if (IsDeletion(*event) && lineEdit()->text().size() < before.size())
            fillGap(before, timeBefore);
    }
}

void ZTimeEdit::typeDigit(QKeyEvent& event, int digit)
{
    const QString before = lineEdit()->text();
    const QTime timeBefore = time();
    if (!handleByQt([&] { QTimeEdit::keyPressEvent(&event); }))
        return;
    const QString after = lineEdit()->text();
    // Without leading zeros in the format, a digit typed over several ones may leave a valid time.
    if (after.size() < before.size() && !read(after).isValid())
        fillGap(before, timeBefore);
    else if (after == before && !isReadOnly())
        overwrite(digit);
}

void ZTimeEdit::finish()
{
    const QPointer<ZTimeEdit> self(this);
    lineEdit()->deselect();
    clearFocus();
    if (self)
        Q_EMIT EnterPressed();
}

// Restores the text deleted at the cursor, with zeros for digits.
void ZTimeEdit::fillGap(const QString& before, const QTime& timeBefore)
{
    const QString after = lineEdit()->text();
    const int position = lineEdit()->cursorPosition();
    const int length = before.size() - after.size();
    const QString gap = before.mid(position, length);
    setTimeFromText(WithZeros(after.left(position) + gap + after.mid(position), position, length), position,
                    timeBefore);
}

// Clears a selection, which Qt does not if it spans several sections.
void ZTimeEdit::clearSelection(bool toClipboard)
{
    if (toClipboard)
        lineEdit()->copy();
    const int position = lineEdit()->selectionStart();
    setTimeFromText(WithZeros(lineEdit()->text(), position, lineEdit()->selectionLength()), position, time());
}

void ZTimeEdit::setTimeFromText(const QString& text, int position, const QTime& fallback)
{
    const QTime read = this->read(text);
    const QPointer<ZTimeEdit> self(this);
    setTimeClamped(read.isValid() ? read : fallback);
    if (!self)
        return;
    updateStyle();
    lineEdit()->setCursorPosition(position);
}

void ZTimeEdit::setAfternoon(bool on)
{
    if (isReadOnly() || on == IsAfternoon(time()))
        return;
    const QPointer<ZTimeEdit> self(this);
    setTimeClamped(time().addSecs(HALF_DAY_HOURS * 60 * 60));
    if (self)
        setSelectedSection(AmPmSection);
}

void ZTimeEdit::overwrite(int digit)
{
    QString text = lineEdit()->text();
    const int position = lineEdit()->hasSelectedText() ? lineEdit()->selectionStart() : lineEdit()->cursorPosition();
    if (position >= text.size())
        return;
    const int fromEnd = text.size() - position;
    if (text[position].isDigit()) {
        text[position] = QChar('0' + digit);
        const QTime time = read(text);
        if (!time.isValid())
            return;
        const QPointer<ZTimeEdit> self(this);
        setTimeClamped(time);
        if (!self)
            return;
        updateStyle();
        text = lineEdit()->text();
    }
    // Counted from the end, because the hour may have gained a digit.
    const auto next = std::find_if(text.begin() + qMax(0, text.size() - fromEnd + 1), text.end(),
                                   [](QChar character) { return character.isDigit(); });
    lineEdit()->setCursorPosition(int(next - text.begin()));
    lineEdit()->deselect();
}

void ZTimeEdit::wheelEvent(QWheelEvent* event)
{
    if (focusPolicy() != Qt::StrongFocus)
        handleByQt([&] { QTimeEdit::wheelEvent(event); });
    else
        event->ignore();
}

void ZTimeEdit::focusInEvent(QFocusEvent* event)
{
    setFocusPolicy(Qt::WheelFocus);
    // Before Qt selects the first section.
    updateStyle();
    handleByQt([&] { QTimeEdit::focusInEvent(event); });
}

void ZTimeEdit::focusOutEvent(QFocusEvent* event)
{
    if (!handleByQt([&] { QTimeEdit::focusOutEvent(event); }))
        return;
    setFocusPolicy(Qt::StrongFocus);
    updateStyle();
}

void ZTimeEdit::showEvent(QShowEvent* event)
{
    QTimeEdit::showEvent(event);
    updateStyle();
}

void ZTimeEdit::changeEvent(QEvent* event)
{
    QTimeEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LocaleChange)
        updateStyle();
    else if (event->type() == QEvent::LayoutDirectionChange && isRightToLeft())
        setLayoutDirection(Qt::LeftToRight);
}
