#include <UI/Kit/ZLabel.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/TextMarks.h>

#include <QEvent>
#include <QFontMetrics>
#include <QPointer>

#include <cmath>

using namespace Zelkor::Vx::UI;

namespace {

// Whether a text is sure to fit, found without laying it out, which takes longer than all the rest of a new text. Qt
// has the widths of Latin-1 letters at hand; an eighth more is room for kerning. False says nothing.
bool SurelyFits(const QFont& font, const QString& text, int width)
{
    if (font.letterSpacing() != 0 || font.wordSpacing() != 0 || font.capitalization() != QFont::MixedCase)
        return false;
    const QFontMetrics metrics(font);
    int sum = 0;
    for (const QChar letter : text) {
        if (letter.unicode() > 0xff || !letter.isPrint())
            return false;
        sum += metrics.horizontalAdvance(letter);
    }
    return sum + sum / 8 < width;
}

/// Qt's own interface of a label would take the direction marks of an empty text for a name.
class AccessibleLabel : public QAccessibleWidget
{
public:
    explicit AccessibleLabel(ZLabel* label) : QAccessibleWidget(label), label(label) {}

    QAccessible::Role role() const override
    {
        return label->pixmap(Qt::ReturnByValue).isNull() ? QAccessible::StaticText : QAccessible::Graphic;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Name || !label->accessibleName().isEmpty())
            return QAccessibleWidget::text(kind);
        return label->buddy() ? Common::WithoutMnemonic(label->originalText()) : label->originalText();
    }

private:
    ZLabel* label;
};

} // namespace

ZLabel::ZLabel(QWidget* parent) : QLabel(parent)
{
    Common::AccessibleFactory<ZLabel, AccessibleLabel>::Install();
    setText(storedText);
}

QString ZLabel::originalText() const
{
    return Common::WithoutEmbedding(storedText);
}

void ZLabel::setOriginalText(const QString& text)
{
    if (originalText() == text)
        return;
    storedText = Common::Embed(text);
    refreshText();
    // What is displayed may be the same, where both are elided.
    updateGeometry();
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
    Q_EMIT originalTextChanged(text);
}

void ZLabel::setEliding(bool on)
{
    if (eliding == on)
        return;
    eliding = on;
    refreshText();
}

void ZLabel::setClickable(bool on)
{
    clickable = on;
}

QString ZLabel::textThatFits() const
{
    const int available = width() - 2 * frameWidth();
    if (!eliding || SurelyFits(font(), originalText(), available))
        return storedText;
    return QFontMetrics(font()).elidedText(storedText, Qt::ElideRight, available, 0);
}

QString ZLabel::wholeTextIfElided() const
{
    return displayed == storedText ? QString() : storedText;
}

void ZLabel::refreshText()
{
    displayed = textThatFits();
    setText(displayed);
    setToolTip(wholeTextIfElided());
}

// Qt's hint is for what is displayed: once elided, the label would never ask for the room that it lacks.
QSize ZLabel::sizeHint() const
{
    QSize hint = QLabel::sizeHint();
    if (eliding && !originalText().isEmpty()) {
        const int text = int(std::ceil(QFontMetricsF(font()).horizontalAdvance(storedText)));
        hint.setWidth(qMax(hint.width(), text + 2 * frameWidth()));
    }
    return hint;
}

void ZLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    const bool isStyle = event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    // Another font changes neither a text nor a tool tip that a style sheet has just set.
    if (!isStyle || text() != displayed || displayed == textThatFits())
        return;
    const QString given = toolTip();
    const bool isGiven = given != wholeTextIfElided();
    refreshText();
    if (isGiven)
        setToolTip(given);
}

void ZLabel::mousePressEvent(QMouseEvent* event)
{
    const QPointer<ZLabel> self(this);
    if (clickable)
        Q_EMIT clicked();
    if (self)
        QLabel::mousePressEvent(event);
}

void ZLabel::resizeEvent(QResizeEvent* event)
{
    refreshText();
    QWidget::resizeEvent(event);
}
