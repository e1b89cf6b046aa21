#include <UI/Widgets/ScrollablePanelWithItem.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/AddWithoutDeferredShow.h>
#include <UI/Common/BoxLayouts.h>
#include <UI/Common/CanBeParentOf.h>
#include <UI/Common/MirroredStyle.h>
#include <UI/Common/PlainLook.h>

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace Zelkor::Vx::UI {

namespace {

// Maximum width hint of a QScrollArea, in line heights.
constexpr int PREFERRED_LINES = 36;
// In pixels. Wider than any screen, and small enough for the sum of spacings not to overflow.
constexpr int MAXIMUM_SPACING = 0xffff;

// Returns the scroll value nearest to `value` that shows the item, or its beginning if it is wider than the view.
int ValueToShow(const QRect& item, int value, int viewWidth)
{
    return qMin(qMax(value, item.x() + item.width() - viewWidth), item.x());
}

} // namespace

/// Scrolls horizontally only. Its height is that of its contents.
class Q_DECL_HIDDEN ScrollablePanelWithItem::ScrollArea : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

    QSize sizeHint() const override
    {
        const QSize contents = widget()->sizeHint();
        return WithFrame({qMin(contents.width(), PREFERRED_LINES * fontMetrics().height()), contents.height()});
    }

    // Fits about one item.
    QSize minimumSizeHint() const override
    {
        const QSize contents = widget()->sizeHint();
        return WithFrame({qMin(contents.width(), contents.height()), contents.height()});
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == widget()) {
            if (event->type() == QEvent::LayoutRequest)
                updateGeometry();
        } else if (event->type() == QEvent::FocusIn && watched->parent() == widget()) {
            // A slot may delete the panel, and the item with it.
            const QPointer<ScrollArea> self(this);
            Show(static_cast<QWidget*>(watched));
            if (!self)
                return true;
        }
        return QScrollArea::eventFilter(watched, event);
    }

protected:
    // QScrollArea does not move its contents when the layout direction changes.
    void changeEvent(QEvent* event) override
    {
        QScrollArea::changeEvent(event);
        if (event->type() == QEvent::LayoutDirectionChange)
            scrollContentsBy(0, 0);
    }

    // A horizontal scroll bar handles both wheel axes, and ignores the event at its ends.
    void wheelEvent(QWheelEvent* event) override
    {
        if (isRightToLeft() && qAbs(event->angleDelta().x()) > qAbs(event->angleDelta().y())) {
            // QScrollBar does not mirror horizontal wheel events.
            QWheelEvent mirrored(event->position(), event->globalPosition(), -event->pixelDelta(), -event->angleDelta(),
                                 event->buttons(), event->modifiers(), event->phase(), event->inverted(),
                                 event->source());
            QCoreApplication::sendEvent(horizontalScrollBar(), &mirrored);
            event->setAccepted(mirrored.isAccepted());
        } else {
            QCoreApplication::sendEvent(horizontalScrollBar(), event);
        }
    }

    // QScrollArea would scroll to the item, but ignores right-to-left layout and scrolls vertically too.
    bool focusNextPrevChild(bool next) override { return QWidget::focusNextPrevChild(next); }

private:
    QSize WithFrame(const QSize& contents) const { return contents + QSize(2 * frameWidth(), 2 * frameWidth()); }

    void Show(QWidget* item)
    {
        // An item may receive focus before it is laid out.
        widget()->layout()->activate();
        QScrollBar* bar = horizontalScrollBar();
        const QRect place = QStyle::visualRect(layoutDirection(), widget()->rect(), item->geometry());
        bar->setValue(ValueToShow(place, bar->value(), viewport()->width()));
    }
};

struct ScrollablePanelWithItem::Items
{
    // Removes items that were deleted, have another parent, or are being destroyed, which makes qobject_cast() fail.
    // Called before each use, since an event filter may swallow the child event.
    void Prune(const QWidget* frame)
    {
        const auto isGone = [=](QObject* item) { return !qobject_cast<QToolButton*>(item) || item->parent() != frame; };
        list.erase(std::remove_if(list.begin(), list.end(), isGone), list.end());
    }

    QList<QPointer<QObject>> list; ///< tool buttons, in the order in which they were appended
};

struct ScrollablePanelWithItem::Parts
{
    QToolButton* leftScrollButton;
    QToolButton* rightScrollButton;
    ScrollArea* panelScrollArea;
    QFrame* itemsFrame;
    QHBoxLayout* itemsLayout;
};

ScrollablePanelWithItem::ScrollablePanelWithItem(QWidget* parent)
    : ZFrame(parent), items(std::make_unique<Items>()), parts(std::make_unique<Parts>())
{
    Common::FollowLayoutDirection();
    Common::AccessibleFactory<ScrollablePanelWithItem, Common::AccessibleAs<QAccessible::ToolBar>>::Install();
    const auto makeScrollButton = [this](const QString& objectName, Common::Symbol symbol) {
        auto* button = new Common::SymbolButton(symbol, this);
        button->setObjectName(objectName);
        // Keyboard users scroll by focusing items.
        button->setFocusPolicy(Qt::NoFocus);
        return button;
    };
    parts->leftScrollButton = makeScrollButton(QStringLiteral("leftScrollButton"), Common::Symbol::Previous);
    parts->rightScrollButton = makeScrollButton(QStringLiteral("rightScrollButton"), Common::Symbol::Next);
    Retranslate();
    ScrollArea* area = parts->panelScrollArea = new ScrollArea(this);
    area->setObjectName(QStringLiteral("panelScrollArea"));
    area->setFocusPolicy(Qt::NoFocus);
    area->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    area->setAlignment(Qt::AlignVCenter);
    parts->itemsFrame = new QFrame(area);
    parts->itemsFrame->setObjectName(QStringLiteral("itemsFrame"));
    parts->itemsLayout = Common::MakeBoxLayout<QHBoxLayout>(parts->itemsFrame);
    parts->itemsLayout->setSizeConstraint(QLayout::SetFixedSize);

    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    area->setWidget(parts->itemsFrame);
    auto* layout = Common::MakeBoxLayout<QHBoxLayout>(this);
    layout->addWidget(parts->leftScrollButton);
    layout->addWidget(area);
    layout->addWidget(parts->rightScrollButton);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    area->verticalScrollBar()->setEnabled(false);

    connect(parts->leftScrollButton, &QToolButton::clicked, this, [this] { Scroll(-1); });
    connect(parts->rightScrollButton, &QToolButton::clicked, this, [this] { Scroll(1); });
    const QScrollBar* bar = area->horizontalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, &ScrollablePanelWithItem::UpdateScrollButtons);
    connect(bar, &QScrollBar::rangeChanged, this, &ScrollablePanelWithItem::UpdateScrollButtons);
    area->installEventFilter(this);
    parts->leftScrollButton->setEnabled(false);
    parts->rightScrollButton->setEnabled(false);
    ensurePolished();
}

ScrollablePanelWithItem::~ScrollablePanelWithItem()
{
    // Deletes the items first: slots of their destroyed() may use the panel, and delete further items.
    items->Prune(parts->itemsFrame);
    const auto removed = std::exchange(items->list, {});
    for (const QPointer<QObject>& item : removed)
        delete item;
    delete parts->panelScrollArea;
}

int ScrollablePanelWithItem::GetItemsScpacing() const
{
    return parts->itemsLayout->spacing();
}

void ScrollablePanelWithItem::SetItemsSpacing(int spacing)
{
    parts->itemsLayout->setSpacing(qMin(spacing, MAXIMUM_SPACING));
    parts->panelScrollArea->updateGeometry();
}

void ScrollablePanelWithItem::Append(QToolButton* item)
{
    if (!item || item == parts->leftScrollButton || item == parts->rightScrollButton ||
        !Common::CanBeParentOf(parts->itemsFrame, item))
        return;
    items->Prune(parts->itemsFrame);
    items->list.removeOne(item);
    items->list.append(item);
    Common::AddWithoutDeferredShow(parts->itemsLayout, item);
    // QLayout removes a deleted widget in an event, which a filter may swallow; the layout would then use the widget.
    disconnect(item, nullptr, parts->itemsLayout, nullptr);
    connect(item, &QObject::destroyed, parts->itemsLayout,
            [layout = parts->itemsLayout, item] { layout->removeWidget(item); });
    item->installEventFilter(parts->panelScrollArea);
    parts->panelScrollArea->updateGeometry();
}

void ScrollablePanelWithItem::RemoveItems()
{
    items->Prune(parts->itemsFrame);
    const auto removed = std::exchange(items->list, {});
    for (QObject* item : removed) {
        parts->itemsLayout->removeWidget(static_cast<QWidget*>(item));
        item->deleteLater();
    }
    parts->panelScrollArea->updateGeometry();
}

bool ScrollablePanelWithItem::SelectItem(int index)
{
    items->Prune(parts->itemsFrame);
    if (index < 0 || index >= items->list.size())
        return false;
    static_cast<QToolButton*>(items->list[index].data())->click();
    return true;
}

void ScrollablePanelWithItem::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    ZFrame::changeEvent(event);
}

void ScrollablePanelWithItem::Retranslate()
{
    parts->leftScrollButton->setAccessibleName(tr("Previous"));
    parts->rightScrollButton->setAccessibleName(tr("Next"));
}

void ScrollablePanelWithItem::Scroll(int direction)
{
    QScrollBar* bar = parts->panelScrollArea->horizontalScrollBar();
    const qint64 step = qint64(parts->panelScrollArea->width()) + GetItemsScpacing();
    bar->setValue(int(qBound(qint64(bar->minimum()), bar->value() + direction * step, qint64(bar->maximum()))));
}

void ScrollablePanelWithItem::UpdateScrollButtons()
{
    const QScrollBar* bar = parts->panelScrollArea->horizontalScrollBar();
    parts->leftScrollButton->setEnabled(bar->value() != bar->minimum());
    parts->rightScrollButton->setEnabled(bar->value() != bar->maximum());
}

} // namespace Zelkor::Vx::UI
