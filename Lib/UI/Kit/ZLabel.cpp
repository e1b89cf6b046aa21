#include <UI/Kit/ZLabel.h>

#include <UI/Common/TextMarks.h>

#include <QFontMetrics>
#include <QPointer>

using namespace Zelkor::Vx::UI;

ZLabel::ZLabel(QWidget* parent) : QLabel(parent)
{
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
    const QString displayedText =
        QFontMetrics(font()).elidedText(storedText, Qt::ElideRight, width() - 2 * frameWidth(), 0);
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
