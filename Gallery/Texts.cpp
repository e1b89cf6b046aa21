#include "Texts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QStyledItemDelegate>
#include <QVariant>

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

void HideEmptyHotKey(QWidget* button)
{
    for (auto* label : button->findChildren<QLabel*>()) {
        if (label->objectName().startsWith("HotKey"))
            label->setHidden(label->property("originalText").toString().isEmpty());
    }
}

void StyleItems(QComboBox* combo)
{
    combo->setItemDelegate(new QStyledItemDelegate(combo));
    combo->view()->setIconSize(combo->iconSize());
}

} // namespace Zelkor::Gallery
