#include <UI/Widgets/CountdownIndicatorWidget.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/BoxLayouts.h>
#include <UI/Common/PlainLook.h>

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>

#include <array>
#include <vector>

namespace Zelkor::Vx {

namespace {

constexpr quint64 MINUTE = 60;
constexpr quint64 HOUR = 60 * MINUTE;
constexpr quint64 DAY = 24 * HOUR;
constexpr quint64 MONTH = 30 * DAY;
constexpr quint64 YEAR = 365 * DAY;

constexpr int DIGITS = 2;
constexpr quint64 LARGEST_NUMBER = 99;
constexpr size_t NUMBERS = 3;

struct Unit
{
    quint64 seconds;
    struct
    {
        const char* text;
        const char* comment;
    } caption;
};

constexpr Unit UNITS[] = {
    {YEAR, QT_TRANSLATE_NOOP3("CountdownIndicatorWidget", "yr", "short years (max 3 letters)")},
    {MONTH, QT_TRANSLATE_NOOP3("CountdownIndicatorWidget", "mon", "short months (max 3 letters)")},
    {DAY, QT_TRANSLATE_NOOP3("CountdownIndicatorWidget", "day", "short days (max 3 letters)")},
    {HOUR, QT_TRANSLATE_NOOP3("CountdownIndicatorWidget", "hr", "short hours (max 3 letters)")},
    {MINUTE, QT_TRANSLATE_NOOP3("CountdownIndicatorWidget", "min", "short minutes (max 3 letters)")},
    {1, QT_TRANSLATE_NOOP3("CountdownIndicatorWidget", "sec", "short seconds (max 3 letters)")},
};

// A mode selects three consecutive units; the next mode starts one unit larger.
constexpr quint32 LARGEST_MODE = 3;

// Returns the mode with the smallest units whose first number has two digits; more than a year is shown in years.
quint32 ModeFor(quint64 seconds)
{
    if (seconds > YEAR)
        return LARGEST_MODE;
    if (seconds > LARGEST_NUMBER * DAY)
        return 2;
    return seconds > LARGEST_NUMBER * HOUR ? 1 : 0;
}

const Unit& UnitAt(quint32 mode, size_t place)
{
    return UNITS[LARGEST_MODE - mode + place];
}

using Numbers = std::array<quint64, NUMBERS>;

Numbers Split(quint64 seconds, quint32 mode)
{
    Numbers numbers;
    for (size_t i = 0; i < NUMBERS; ++i) {
        numbers[i] = seconds / UnitAt(mode, i).seconds;
        seconds %= UnitAt(mode, i).seconds;
    }
    return numbers;
}

// A label has room for two digits, so 100 years and more lose the last ones.
QString TwoDigits(quint64 number)
{
    return QString::number(number).rightJustified(DIGITS, QLatin1Char('0'), true);
}

// tr() would use the qualified class name as context.
QString Caption(const Unit& unit)
{
    return QCoreApplication::translate("CountdownIndicatorWidget", unit.caption.text, unit.caption.comment, -1);
}

// Returns whether the text changed. Setting the same text would lay out and repaint the label.
bool Show(QLabel* label, const QString& text)
{
    if (label->text() == text)
        return false;
    label->setText(text);
    return true;
}

/// A label of either row. Without a style sheet, all numbers are as wide as the widest label of either row, and
/// captions wider by the separator between numbers, so that each caption is centred below its number.
class ColumnLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QSize sizeHint() const override { return InColumn(QLabel::sizeHint()); }
    QSize minimumSizeHint() const override { return InColumn(QLabel::minimumSizeHint()); }

    std::vector<const QLabel*> others; ///< of both rows
    const QLabel* separator = nullptr; ///< set for captions

private:
    QSize InColumn(QSize hint) const
    {
        if (UI::Common::HasStyleSheet(*this))
            return hint;
        for (const QLabel* label : others)
            hint.setWidth(qMax(hint.width(), label->QLabel::sizeHint().width()));
        if (separator)
            hint.rwidth() += separator->sizeHint().width();
        return hint;
    }
};

template<class Label>
Label* CreateLabel(const QString& objectName, QWidget* parent)
{
    auto* label = new Label(parent);
    label->setObjectName(objectName);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QLabel* CreateSeparator()
{
    auto* separator = CreateLabel<QLabel>(QStringLiteral("numbersSeparator"), nullptr);
    separator->setText(QStringLiteral(":"));
    return separator;
}

ZFrame* CreateRow(const QString& objectName, QWidget* parent)
{
    auto* row = new ZFrame(parent);
    row->setObjectName(objectName);
    // Clocks are left-to-right in every script: mirrored, 01:02:03 would read as another time.
    row->setLayoutDirection(Qt::LeftToRight);
    return row;
}

} // namespace

struct CountdownIndicatorWidget::Impl
{
    class Accessible;

    explicit Impl(QWidget* widget)
        : numbersFrame(CreateRow(QStringLiteral("numbersFrame"), widget)),
          numberLabels{CreateLabel<ColumnLabel>(QStringLiteral("number1Label"), numbersFrame),
                       CreateLabel<ColumnLabel>(QStringLiteral("number2Label"), numbersFrame),
                       CreateLabel<ColumnLabel>(QStringLiteral("number3Label"), numbersFrame)},
          captionsFrame(CreateRow(QStringLiteral("captionsFrame"), widget)),
          captionLabels{CreateLabel<ColumnLabel>(QStringLiteral("caption1Label"), captionsFrame),
                        CreateLabel<ColumnLabel>(QStringLiteral("caption2Label"), captionsFrame),
                        CreateLabel<ColumnLabel>(QStringLiteral("caption3Label"), captionsFrame)}
    {}

    // Both return whether a text changed.
    bool ShowNumbers()
    {
        bool changed = false;
        const Numbers numbers = Split(seconds, mode);
        for (size_t i = 0; i < NUMBERS; ++i)
            changed |= Show(numberLabels[i], TwoDigits(numbers[i]));
        return changed;
    }

    bool ShowCaptions()
    {
        bool changed = false;
        for (size_t i = 0; i < NUMBERS; ++i)
            changed |= Show(captionLabels[i], Caption(UnitAt(mode, i)));
        // The widths of the columns depend on all captions.
        for (size_t i = 0; changed && i < NUMBERS; ++i) {
            numberLabels[i]->updateGeometry();
            captionLabels[i]->updateGeometry();
        }
        return changed;
    }

    void AlignColumns(const QLabel* separator)
    {
        for (ColumnLabel* label : numberLabels) {
            label->others.assign(numberLabels.begin(), numberLabels.end());
            label->others.insert(label->others.end(), captionLabels.begin(), captionLabels.end());
        }
        for (ColumnLabel* label : captionLabels) {
            label->others = numberLabels[0]->others;
            label->separator = separator;
        }
    }

    ZFrame* numbersFrame;
    std::array<ColumnLabel*, NUMBERS> numberLabels;
    ZFrame* captionsFrame;
    std::array<ColumnLabel*, NUMBERS> captionLabels;
    quint64 seconds = 0;
    quint32 mode = 0;
};

/// Exposes the countdown as one text, "1 hr 2 min 3 sec", after the accessible name that the application has set. Eight
/// single labels, two of them colons, would make no sense to a screen reader. Numbers are not shortened here.
class CountdownIndicatorWidget::Impl::Accessible : public QAccessibleWidget
{
public:
    explicit Accessible(CountdownIndicatorWidget* countdown)
        : QAccessibleWidget(countdown, QAccessible::StaticText), countdown(countdown)
    {}

    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override
    {
        QString own = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Name)
            return own;
        QStringList words{own};
        words.removeAll(QString());
        const quint32 mode = countdown->impl->mode;
        const Numbers numbers = Split(countdown->impl->seconds, mode);
        for (size_t i = 0; i < NUMBERS; ++i)
            words << QString::number(numbers[i]) << Caption(UnitAt(mode, i));
        return words.join(QLatin1Char(' '));
    }

private:
    CountdownIndicatorWidget* countdown;
};

CountdownIndicatorWidget::CountdownIndicatorWidget(QWidget* parent) : ZFrame(parent), impl(std::make_unique<Impl>(this))
{
    UI::Common::AccessibleFactory<CountdownIndicatorWidget, Impl::Accessible>::Install();

    auto* numbersRow = UI::Common::MakeBoxLayout<QHBoxLayout>(impl->numbersFrame);
    numbersRow->addStretch();
    numbersRow->addWidget(impl->numberLabels[0]);
    QLabel* separator = CreateSeparator();
    numbersRow->addWidget(separator);
    numbersRow->addWidget(impl->numberLabels[1]);
    numbersRow->addWidget(CreateSeparator());
    numbersRow->addWidget(impl->numberLabels[2]);
    numbersRow->addStretch();

    auto* captionsRow = UI::Common::MakeBoxLayout<QHBoxLayout>(impl->captionsFrame);
    captionsRow->addStretch();
    for (ColumnLabel* label : impl->captionLabels)
        captionsRow->addWidget(label);
    captionsRow->addStretch();

    auto* rows = UI::Common::MakeBoxLayout<QVBoxLayout>(this);
    rows->addStretch();
    rows->addWidget(impl->numbersFrame);
    rows->addWidget(impl->captionsFrame);
    rows->addStretch();

    impl->AlignColumns(separator);
    SetSeconds(0);
}

CountdownIndicatorWidget::~CountdownIndicatorWidget() = default;

void CountdownIndicatorWidget::SetSeconds(unsigned long long seconds)
{
    impl->seconds = seconds;
    impl->mode = ModeFor(seconds);
    const bool numbersChanged = impl->ShowNumbers();
    const bool captionsChanged = impl->ShowCaptions();
    if (numbersChanged || captionsChanged)
        TellNewName();
}

unsigned long long CountdownIndicatorWidget::GetSeconds() const
{
    return impl->seconds;
}

void CountdownIndicatorWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && impl->ShowCaptions())
        TellNewName();
    QFrame::changeEvent(event);
}

// Some screen readers cache names.
void CountdownIndicatorWidget::TellNewName()
{
    if (!isVisible())
        return;
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

} // namespace Zelkor::Vx
