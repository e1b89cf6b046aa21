#include "Screenshot.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPainter>
#include <QPixmap>

namespace Zelkor::Gallery {

QImage TakePicture(QWidget* window)
{
    QPixmap picture = window->grab();
    QPainter painter(&picture);
    for (QWidget* other : QApplication::topLevelWidgets()) {
        const Qt::WindowType type = other->windowType();
        if (other != window && other->isVisible() && (type == Qt::Popup || type == Qt::Dialog))
            painter.drawPixmap(other->mapToGlobal(QPoint()) - window->mapToGlobal(QPoint()), other->grab());
    }
    painter.end();
    return picture.toImage();
}

QAbstractButton* FindButton(const QWidget* window, const QString& text)
{
    for (auto* button : window->findChildren<QAbstractButton*>()) {
        const QString plainText = button->text().remove('&');
        if (button->isVisible() && (plainText == text || button->text() == text || button->accessibleName() == text))
            return button;
    }
    return nullptr;
}

} // namespace Zelkor::Gallery
