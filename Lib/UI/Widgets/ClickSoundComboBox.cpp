#include <UI/Widgets/ClickSoundComboBox.h>

#include <UI/Common/MirroredStyle.h>

#include <QAbstractItemView>
#include <QStylePainter>

namespace Zelkor::Vx::UI {

namespace {

// Kept for the arrow and the margins, whatever the style makes of them.
constexpr int ARROW_SPACE = 30;

} // namespace

ClickSoundComboBox::ClickSoundComboBox(QWidget* parent) : QComboBox(parent)
{
    Common::FollowLayoutDirection();
    view()->setTextElideMode(Qt::ElideRight);
}

ClickSoundComboBox::~ClickSoundComboBox() = default;

void ClickSoundComboBox::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    option.currentText = option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, width() - ARROW_SPACE);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace Zelkor::Vx::UI
