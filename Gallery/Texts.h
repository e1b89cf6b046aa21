#pragma once

class QAbstractButton;
class QLabel;
class QString;

namespace Zelkor::Gallery {

/// Sets the text of a button that has an icon before it. Qt leaves but 4 pixels between the two, so the visible text
/// gets a space more; its name for assistive technology does not.
void SetTextBesideIcon(QAbstractButton* button, const QString& text);

/// Has the text of a label begin where its layout does. By itself, a text that runs from left to right stays at the
/// left also when everything else is mirrored.
void AlignAtStart(QLabel* label);

} // namespace Zelkor::Gallery
