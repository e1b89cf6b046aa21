#include <UI/Kit/AdvancedComboView.h>

#include <UI/Common/ScreenOf.h>

#include <QComboBox>
#include <QLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

namespace Common = Zelkor::Vx::UI::Common;

// Lays out the items of a view again when it is destroyed: from the event loop, when the view has handled the current
// change.
class DeferredFlow : public QObject
{
public:
    explicit DeferredFlow(QListView* view) : QObject(view) { QTimer::singleShot(0, this, &QObject::deleteLater); }

    ~DeferredFlow() override
    {
        // The destructor of the view deletes its children when it is no QListView any more.
        if (auto* view = qobject_cast<QListView*>(parent()))
            view->setFlow(QListView::TopToBottom);
    }
};

QRect RoomFor(const QWidget& widget)
{
    const QScreen* screen = Common::ScreenOf(widget);
    return screen ? screen->availableGeometry() : QRect(0, 0, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

// Returns the width of a pop-up that its list does not fill.
int WidthAround(const QWidget* popUp)
{
    if (!popUp || !popUp->layout())
        return 0;
    const QMargins margins = popUp->contentsMargins() + popUp->layout()->contentsMargins();
    return margins.left() + margins.right();
}

// Moves a pop-up at `left` onto the screen: entirely, or at least its leading edge.
int PopUpLeft(int left, int width, const QRect& screen, bool isRightToLeft)
{
    const int last = screen.x() + screen.width() - width;
    return isRightToLeft ? std::min(std::max(left, screen.x()), last) : std::max(std::min(left, last), screen.x());
}

} // namespace

AdvancedComboView::AdvancedComboView(QComboBox* combo, bool wide) : combo(combo), wide(wide)
{
    if (wide)
        setTextElideMode(Qt::ElideNone);
}

void AdvancedComboView::fitToItems()
{
    ensurePolished();
    executeDelayedItemsLayout();
    applyWidth();
}

void AdvancedComboView::applyWidth()
{
    if (!wide || !combo)
        return;
    const QScrollBar* bar = verticalScrollBar();
    const int barWidth = bar && bar->maximum() != 0 ? bar->width() : 0;
    // A style sheet may add a border and padding.
    const int frame = width() - maximumViewportSize().width();
    const int needed = widestItem + barWidth + frame;
    setMinimumWidth(std::min(needed, RoomFor(*combo).width() - WidthAround(parentWidget())));
}

// The virtual function has another name since Qt 6.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
void AdvancedComboView::initViewItemOption(QStyleOptionViewItem* option) const
{
    QListView::initViewItemOption(option);
    adapt(*option);
}
#else
QStyleOptionViewItem AdvancedComboView::viewOptions() const
{
    QStyleOptionViewItem option = QListView::viewOptions();
    adapt(option);
    return option;
}
#endif

void AdvancedComboView::adapt(QStyleOptionViewItem& option) const
{
    option.showDecorationSelected = true;
    if (combo)
        option.font = combo->font();
}

void AdvancedComboView::resizeEvent(QResizeEvent* event)
{
    resizeContents(viewport()->width(), contentsSize().height());
    QListView::resizeEvent(event);
    applyWidth();
}

void AdvancedComboView::doItemsLayout()
{
    hasNewLayout = true;
    QListView::doItemsLayout();
    applyWidth();
}

void AdvancedComboView::updateGeometries()
{
    if (std::exchange(hasNewLayout, false) && wide && combo)
        widestItem = std::max(0, measureItems());
    QListView::updateGeometries();
}

// Called right after a layout. Measuring all items again would double the time that a long list takes to open.
int AdvancedComboView::measureItems() const
{
    const int column = combo->modelColumn();
    // Rows of a menu differ only in the bold one. QComboBox::showPopup() makes room for the texts.
    if (itemDelegate()->inherits("QComboMenuDelegate"))
        return sizeHintForIndex(model()->index(std::max(0, combo->currentIndex()), column, rootIndex())).width();
    // Before scroll bars are added, the contents are as wide as the widest item.
    if (itemDelegate()->inherits("QComboBoxDelegate"))
        return contentsSize().width();
    // Size hints of other delegates may depend on the current width.
    return sizeHintForColumn(column);
}

bool AdvancedComboView::eventFilter(QObject* watched, QEvent* event)
{
    // A pop-up that has its width from the last time only moves.
    if (wide && watched == parent() && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        keepPopUpOnScreen();
    return QListView::eventFilter(watched, event);
}

void AdvancedComboView::paintEvent(QPaintEvent* event)
{
    if (combo)
        paintMenuBackground(event->rect());
    QListView::paintEvent(event);
}

// Some styles draw the list of a combo box as a menu.
void AdvancedComboView::paintMenuBackground(const QRect& area)
{
    QStyleOptionComboBox comboOption;
    comboOption.initFrom(combo);
    comboOption.editable = combo->isEditable();
    if (!combo->style()->styleHint(QStyle::SH_ComboBox_Popup, &comboOption, combo))
        return;
    QStyleOptionMenuItem option;
    option.initFrom(this);
    option.palette = palette();
    option.state = QStyle::State_None;
    option.checkType = QStyleOptionMenuItem::NotCheckable;
    option.menuRect = area;
    QPainter painter(viewport());
    combo->style()->drawControl(QStyle::CE_MenuEmptyArea, &option, &painter, this);
}

void AdvancedComboView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange && combo && combo->view()->isVisible()) {
        // Reopens the pop-up, because its position depends on the direction.
        combo->hidePopup();
        combo->showPopup();
    } else if (event->type() == QEvent::ParentChange && parent()) {
        parent()->installEventFilter(this);
    } else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        new DeferredFlow(this);
    }
    QListView::changeEvent(event);
}

// QComboBox moves its pop-up before the view has its final width.
void AdvancedComboView::keepPopUpOnScreen()
{
    QWidget* popUp = window();
    if (!combo || popUp == this || popUp == combo->window() || popUp->graphicsProxyWidget())
        return;
    const QPoint comboLeft = combo->mapToGlobal(QPoint(0, 0));
    const bool isRightToLeft = combo->isRightToLeft();
    const int left = isRightToLeft ? comboLeft.x() + combo->width() - popUp->width() : popUp->x();
    const int fitted = Common::IsWayland() ? left : PopUpLeft(left, popUp->width(), RoomFor(*combo), isRightToLeft);
    const QPoint place(fitted, popUp->y());
    if (popUp->pos() != place)
        popUp->setGeometry(QRect(place, popUp->size()));
}
