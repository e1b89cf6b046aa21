#include <UI/Widgets/ClickSoundComboBox.h>

#include <UI/Common/MirroredStyle.h>
#include <UI/Common/ScreenOf.h>

#include <QAbstractItemView>
#include <QStylePainter>

namespace Zelkor::Vx::UI {

namespace {

// Pixels for the arrow and the margins, in any style.
constexpr int ARROW_SPACE = 30;

// In average characters. Longer items are elided.
constexpr int MINIMUM_LENGTH = 5;
constexpr int MAXIMUM_LENGTH = 40;

int WidthFor(const QWidget& box, int characters)
{
    return box.fontMetrics().averageCharWidth() * characters + ARROW_SPACE;
}

} // namespace

ClickSoundComboBox::ClickSoundComboBox(QWidget* parent) : QComboBox(parent)
{
    Common::FollowLayoutDirection();
    view()->setTextElideMode(Qt::ElideRight);
}

ClickSoundComboBox::~ClickSoundComboBox() = default;

QSize ClickSoundComboBox::sizeHint() const
{
    QSize size = QComboBox::sizeHint();
    size.setWidth(qMax(qMin(size.width(), WidthFor(*this, MAXIMUM_LENGTH)), minimumSizeHint().width()));
    return size;
}

QSize ClickSoundComboBox::minimumSizeHint() const
{
    // Qt keeps the least height of the old font when the font changes.
    QSize size(QComboBox::minimumSizeHint().width(), QComboBox::sizeHint().height());
    // The base class fits a minimum length that the application has set.
    if (minimumContentsLength() == 0)
        size.setWidth(qMin(size.width(), WidthFor(*this, MINIMUM_LENGTH)));
    return size;
}

// Qt makes the list as wide as the box, except in styles that show it as a menu.
void ClickSoundComboBox::showPopup()
{
    QComboBox::showPopup();
    QWidget* list = view()->parentWidget();
    const int surroundings = list->width() - view()->viewport()->width();
    const int whole = view()->sizeHintForColumn(modelColumn()) + surroundings;
    const QRect available = Common::ScreenOf(*this)->availableGeometry();
    QRect place = list->geometry();
    const int wider = qMin(qMin(whole, WidthFor(*this, MAXIMUM_LENGTH)), available.width()) - place.width();
    if (!list->isVisible())
        return;
    if (wider > 0)
        isRightToLeft() ? place.setLeft(place.left() - wider) : place.setRight(place.right() + wider);
    // Qt may have placed it on the screen of the window.
    if (!Common::IsWayland())
        place.moveLeft(qMax(available.left(), qMin(place.left(), available.right() + 1 - place.width())));
    if (place != list->geometry())
        list->setGeometry(place);
}

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
