#include <UI/Kit/ZLabel.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/TextMarks.h>

#include <QEvent>
#include <QFontMetrics>
#include <QPointer>

#include <cmath>

using namespace Zelkor::Vx::UI;

namespace {

// Returns true if a text certainly fits. Avoids the layout of the text, the most expensive step of a new text: Qt
// caches the widths of Latin-1 characters. One eighth is reserved for kerning.
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

/// The interface of QLabel would report the control characters of an empty text as a name.
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
    // The size hint changes even if the elided texts are equal.
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

// Margins are 0 unless the application or the label on a button sets them.
int ZLabel::spaceBeside() const
{
    const QMargins margins = contentsMargins();
    return qMax(2 * frameWidth(), margins.left() + margins.right());
}

QString ZLabel::textThatFits() const
{
    const int available = width() - spaceBeside();
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

// The hint of QLabel is that of the elided text, with which the label would never grow again.
QSize ZLabel::sizeHint() const
{
    QSize hint = QLabel::sizeHint();
    if (eliding && !originalText().isEmpty()) {
        const int text = int(std::ceil(QFontMetricsF(font()).horizontalAdvance(storedText)));
        hint.setWidth(qMax(hint.width(), text + spaceBeside()));
    }
    return hint;
}

void ZLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    const bool isStyle = event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    // A change of the font must not replace a text or tool tip that a style sheet has just set.
    if (!isStyle || text() != displayed || displayed == textThatFits())
        return;
    const QString tip = toolTip();
    const bool isCustom = tip != wholeTextIfElided();
    refreshText();
    if (isCustom)
        setToolTip(tip);
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
