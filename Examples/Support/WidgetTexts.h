#pragma once

#include <functional>

class QAbstractButton;
class QComboBox;
class QLabel;
class QString;
class QWidget;

namespace Zelkor::Gallery {

/// Sets the text of a button that has an icon before it. Qt leaves but 4 pixels between the two, so the visible text
/// gets a space more; its name for assistive technology does not.
void SetTextBesideIcon(QAbstractButton* button, const QString& text);

/// Has the text of a label begin where its layout does. By itself, a text that runs from left to right stays at the
/// left also when everything else is mirrored.
void AlignAtStart(QLabel* label);

/// Calls `adapt` when the layout direction, the font or the style of a widget changes, for what a style sheet cannot
/// do.
void AdaptToSurroundings(QWidget* widget, std::function<void()> adapt);

/// Hides the hot key of a labelled button that has none: the style sheets draw it as a key, which would stand there
/// empty. To be called again for another hot key.
void HideEmptyHotKey(QWidget* button);

/// Has the items of a combo box's list follow the style sheet. By itself, Qt draws them in its own way.
void StyleItems(QComboBox* combo);

} // namespace Zelkor::Gallery
