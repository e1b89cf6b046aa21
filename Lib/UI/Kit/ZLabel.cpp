#include <UI/Kit/ZLabel.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/TextMarks.h>

#include <QFontMetrics>
#include <QPointer>

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
        QString own = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && own.isEmpty() ? Common::WithoutEmbedding(label->text()) : own;
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
    const QString previous = originalText();
    if (previous == text)
        return;
    storedText = Common::Embed(text);
    refreshText();
    // A name that somebody else gave stays; ours follows the text, which the label itself may show elided.
    if (accessibleName().isEmpty() || accessibleName() == previous)
        setAccessibleName(text);
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

void ZLabel::refreshText()
{
    if (!eliding) {
        setText(storedText);
        setToolTip(QString());
        return;
    }
    const int available = width() - 2 * frameWidth();
    QString displayedText = storedText;
    if (!SurelyFits(font(), originalText(), available))
        displayedText = QFontMetrics(font()).elidedText(storedText, Qt::ElideRight, available, 0);
    setText(displayedText);
    setToolTip(displayedText == storedText ? QString() : storedText);
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
