#pragma once

#include <functional>

class QAbstractButton;
class QComboBox;
class QLabel;
class QString;
class QWidget;

namespace Zelkor::Examples {

/// Sets the text of a button with an icon. Qt separates them by 4 pixels only, so the visible text starts with a thin
/// space; the accessible name does not.
void SetTextBesideIcon(QAbstractButton* button, const QString& text);

/// Aligns a label's text with the leading side of its layout, and keeps it there when the direction changes. QLabel
/// aligns by the direction of the text instead.
void AlignAtStart(QLabel* label);

/// Calls `adapt` when the layout direction, the font or the style of a widget changes, for adjustments that style
/// sheets cannot make.
void AdaptToSurroundings(QWidget* widget, std::function<void()> adapt);

/// Makes the list of a combo box follow the style sheet, which Qt's default delegate ignores.
void StyleItems(QComboBox* combo);

} // namespace Zelkor::Examples
