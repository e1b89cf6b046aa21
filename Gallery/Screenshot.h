#pragma once

#include <QImage>
#include <QString>

class QAbstractButton;
class QWidget;

namespace Zelkor::Gallery {

/// Returns a picture of a window with its pop-ups and dialogs.
QImage TakePicture(QWidget* window);

/// Returns the visible button in `window` with `text` as its text, with or without the mnemonic, or as its accessible
/// name; otherwise null.
QAbstractButton* FindButton(const QWidget* window, const QString& text);

} // namespace Zelkor::Gallery
