#include <UI/Common/PlainLook.h>

#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <utility>

namespace Zelkor::Vx::UI::Common {

namespace {

constexpr qreal LINE_WIDTH = 1.5;
constexpr qreal EMPTY_BAR_OPACITY = 0.35;

class PlainMargins : public QObject
{
public:
    PlainMargins(QWidget* widget, std::function<QMargins()> margins)
        : QObject(widget), widget(widget), margins(std::move(margins))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Polish:
        case QEvent::StyleChange:
        case QEvent::FontChange:
        case QEvent::LayoutDirectionChange:
            Update();
            break;
        default:
            break;
        }
        return false;
    }

private:
    void Update()
    {
        const QMargins wanted = HasStyleSheet(*widget) ? QMargins() : margins();
        if (wanted == applied || widget->contentsMargins() != applied)
            return;
        applied = wanted;
        widget->setContentsMargins(applied);
    }

    QWidget* widget;
    std::function<QMargins()> margins;
    QMargins applied;
};

// Returns a square in the middle of the button, with a side of that share of an icon.
QRectF SymbolRect(const QToolButton& button, double share)
{
    const int icon = qMin(qMin(button.width(), button.height()), button.iconSize().height());
    const QRectF rect(0, 0, qRound(share * icon), qRound(share * icon));
    return rect.translated(QRectF(button.rect()).center() - rect.center());
}

bool IsBare(const QToolButton& button)
{
    return button.icon().isNull() && button.text().isEmpty() && !HasStyleSheet(button);
}

} // namespace

bool HasStyleSheet(const QWidget& widget)
{
    return widget.style()->inherits("QStyleSheetStyle");
}

int PlainGap(const QWidget& widget)
{
    return widget.fontMetrics().averageCharWidth();
}

void SetPlainMargins(QWidget* widget, std::function<QMargins()> margins)
{
    new PlainMargins(widget, std::move(margins));
}

void PaintPlainSymbol(QToolButton& button, Symbol symbol)
{
    if (!IsBare(button))
        return;
    QPainter painter(&button);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(button.palette().buttonText(), LINE_WIDTH));
    const QRectF rect = SymbolRect(button, 0.5);
    switch (symbol) {
    case Symbol::Minimize:
        painter.drawLine(rect.bottomLeft(), rect.bottomRight());
        break;
    case Symbol::Maximize:
        painter.drawRect(rect);
        break;
    case Symbol::Restore: {
        const qreal step = rect.width() / 3;
        painter.drawRect(rect.adjusted(0, step, -step, 0));
        painter.drawPolyline(
            QPolygonF({rect.topLeft() + QPointF(step, step), rect.topLeft() + QPointF(step, 0), rect.topRight(),
                       rect.bottomRight() - QPointF(0, step), rect.bottomRight() - QPointF(step, step)}));
        break;
    }
    case Symbol::Close:
        painter.drawLine(rect.topLeft(), rect.bottomRight());
        painter.drawLine(rect.bottomLeft(), rect.topRight());
        break;
    case Symbol::Previous:
    case Symbol::Next: {
        const qreal half = (symbol == Symbol::Next) == button.isRightToLeft() ? rect.width() / 4 : -rect.width() / 4;
        const QPointF center = rect.center();
        painter.drawPolyline(QPolygonF({QPointF(center.x() + half, rect.top()), center - QPointF(half, 0),
                                        QPointF(center.x() + half, rect.bottom())}));
        break;
    }
    }
}

void PaintPlainLevel(QToolButton& button, int level, int bars)
{
    if (!IsBare(button))
        return;
    QPainter painter(&button);
    const QRectF rect = SymbolRect(button, 0.75);
    const qreal step = rect.width() / bars;
    for (int i = 0; i < bars; ++i) {
        const qreal height = rect.height() * (i + 1) / bars;
        const qreal x = button.isRightToLeft() ? rect.right() - (i + 1) * step : rect.left() + i * step;
        painter.setOpacity(i < level ? 1 : EMPTY_BAR_OPACITY);
        painter.fillRect(QRectF(x, rect.bottom() - height, step - 1, height), button.palette().buttonText());
    }
}

void SymbolButton::SetSymbol(Symbol newSymbol)
{
    symbol = newSymbol;
    update();
}

void SymbolButton::paintEvent(QPaintEvent* event)
{
    QToolButton::paintEvent(event);
    PaintPlainSymbol(*this, symbol);
}

} // namespace Zelkor::Vx::UI::Common
