#include <UI/Kit/StyleSheetEditor/MessageLabel.h>

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <utility>

namespace Zelkor::Vx::UI::Kit {

MessageLabel::MessageLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void MessageLabel::setMessage(std::function<QString()> newMessage)
{
    message = std::move(newMessage);
    setText(message ? message() : QString());
}

void MessageLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && message)
        setText(message());
}

QSize MessageLabel::minimumSizeHint() const
{
    return QSize(0, QLabel::minimumSizeHint().height());
}

QString MessageLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

bool MessageLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const QString text = this->text();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), shownText() == text ? QString() : text, this);
    return true;
}

void MessageLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // Punctuation follows the direction of the text, not of the window.
    painter.setLayoutDirection(text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    const Qt::Alignment place = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading | Qt::AlignVCenter);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(place | Qt::AlignAbsolute), palette(), isEnabled(),
                          shownText(), foregroundRole());
}

} // namespace Zelkor::Vx::UI::Kit
