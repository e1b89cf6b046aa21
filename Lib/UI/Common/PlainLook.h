#pragma once

#include <QMargins>
#include <QToolButton>

#include <functional>

/// The look of widgets to which no style sheet applies. Where one applies, it decides all distances and symbols, and
/// these functions do nothing.
namespace Zelkor::Vx::UI::Common {

/// Returns whether a style sheet of the application, of the widget or of one of its parents applies to the widget.
bool HasStyleSheet(const QWidget& widget);

/// Returns the distance between a text and its neighbour, in proportion to the font.
int PlainGap(const QWidget& widget);

/// Gives a widget the contents margins that `margins` returns while no style sheet applies to it. They follow style,
/// font and layout direction. Margins that the application sets are kept.
void SetPlainMargins(QWidget* widget, std::function<QMargins()> margins);

/// In Previous and Next, an arrow against and in the layout direction.
enum class Symbol { Minimize, Maximize, Restore, Close, Previous, Next };

/// Paints a symbol in the text colour of a button, unless the button has an icon, a text or a style sheet.
void PaintPlainSymbol(QToolButton& button, Symbol symbol);

/// As PaintPlainSymbol(), with bars of which the first `level` are full. `bars` is their number.
void PaintPlainLevel(QToolButton& button, int level, int bars);

/// A tool button whose icon comes from a style sheet. Without one, it paints a symbol.
class SymbolButton : public QToolButton
{
public:
    SymbolButton(Symbol symbol, QWidget* parent) : QToolButton(parent), symbol(symbol) {}

    void SetSymbol(Symbol newSymbol);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Symbol symbol;
};

} // namespace Zelkor::Vx::UI::Common
