#include "Texts.h"

#include <QAbstractButton>
#include <QLabel>

namespace Zelkor::Gallery {

namespace {

constexpr QChar THIN_SPACE(0x2009);

} // namespace

void SetTextBesideIcon(QAbstractButton* button, const QString& text)
{
    button->setText(THIN_SPACE + text);
    button->setAccessibleName(text);
}

void AlignAtStart(QLabel* label)
{
    const bool mirrored = label->layoutDirection() == Qt::RightToLeft;
    label->setAlignment((mirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter);
}

} // namespace Zelkor::Gallery
