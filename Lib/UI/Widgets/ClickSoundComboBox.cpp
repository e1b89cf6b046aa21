#include <UI/Widgets/ClickSoundComboBox.h>

#include <UI/Common/MirroredStyle.h>

#include <QAbstractItemView>
#include <QScreen>
#include <QStylePainter>

namespace Zelkor::Vx::UI {

namespace {

// Kept for the arrow and the margins, whatever the style makes of them.
constexpr int ARROW_SPACE = 30;

// Of the text, in average characters; where items are longer, the box elides them.
constexpr int LEAST_SHOWN = 5;
constexpr int MOST_PREFERRED = 40;

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
    size.setWidth(qMax(qMin(size.width(), WidthFor(*this, MOST_PREFERRED)), minimumSizeHint().width()));
    return size;
}

QSize ClickSoundComboBox::minimumSizeHint() const
{
    // Qt keeps the least height of the old font when the font changes.
    QSize size(QComboBox::minimumSizeHint().width(), QComboBox::sizeHint().height());
    // With a minimum length, which the application chose, the base class asks for no more.
    if (minimumContentsLength() == 0)
        size.setWidth(qMin(size.width(), WidthFor(*this, LEAST_SHOWN)));
    return size;
}

// In styles whose list is no menu, Qt makes it as wide as the box.
void ClickSoundComboBox::showPopup()
{
    QComboBox::showPopup();
    QWidget* list = view()->parentWidget();
    const int surroundings = list->width() - view()->viewport()->width();
    const int whole = view()->sizeHintForColumn(modelColumn()) + surroundings;
    const QRect available = screen()->availableGeometry();
    QRect place = list->geometry();
    const int wider = qMin(qMin(whole, WidthFor(*this, MOST_PREFERRED)), available.width()) - place.width();
    if (!list->isVisible() || wider <= 0)
        return;
    isRightToLeft() ? place.setLeft(place.left() - wider) : place.setRight(place.right() + wider);
    place.moveLeft(qBound(available.left(), place.left(), available.right() + 1 - place.width()));
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
