#include "WidgetTexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QStyledItemDelegate>

#include <utility>

namespace Zelkor::Examples {

namespace {

constexpr QChar THIN_SPACE(0x2009);

class Adapter : public QObject
{
public:
    Adapter(QWidget* widget, std::function<void()> adapt) : QObject(widget), adapt(std::move(adapt))
    {
        widget->installEventFilter(this);
    }

private:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::FontChange ||
            event->type() == QEvent::StyleChange)
            adapt();
        return false;
    }

    std::function<void()> adapt;
};

} // namespace

void SetTextBesideIcon(QAbstractButton* button, const QString& text)
{
    button->setText(THIN_SPACE + text);
    button->setAccessibleName(text);
}

void AlignAtStart(QLabel* label)
{
    const auto align = [label] {
        const bool mirrored = label->layoutDirection() == Qt::RightToLeft;
        label->setAlignment((mirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter);
    };
    align();
    AdaptToSurroundings(label, align);
}

void AdaptToSurroundings(QWidget* widget, std::function<void()> adapt)
{
    new Adapter(widget, std::move(adapt));
}

void StyleItems(QComboBox* combo)
{
    combo->setItemDelegate(new QStyledItemDelegate(combo));
    combo->view()->setIconSize(combo->iconSize());
}

} // namespace Zelkor::Examples
