#pragma once

#include <QImage>
#include <QString>

class QAbstractButton;
class QWidget;

namespace Zelkor::Gallery {

/// The picture of a window, with the pop-ups and dialogs that lie over it.
QImage TakePicture(QWidget* window);

/// The visible button in `window` that shows `text`, with or without its mnemonic mark, or is named so for assistive
/// technology; null when there is none.
QAbstractButton* FindButton(const QWidget* window, const QString& text);

} // namespace Zelkor::Gallery
