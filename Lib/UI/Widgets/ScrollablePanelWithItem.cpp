#include <UI/Widgets/ScrollablePanelWithItem.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/AddWithoutDeferredShow.h>
#include <UI/Common/BoxLayouts.h>
#include <UI/Common/CanBeParentOf.h>
#include <UI/Common/MirroredStyle.h>

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

// As wide as Qt lets a scroll area wish to be, in heights of a line of text.
constexpr int PREFERRED_LINES = 36;
// In pixels. The layout adds up spacings without looking for an overflow, and this is wider than any screen.
constexpr int LARGEST_SPACING = 0xffff;

// The scroll value nearest to `value` at which a view of this width shows the item, its beginning before its end.
int ValueToShow(const QRect& item, int value, int viewWidth)
{
    return qMin(qMax(value, item.x() + item.width() - viewWidth), item.x());
}

} // namespace

/// The scroll area: moves sideways only, and takes the height of what it holds.
class Q_DECL_HIDDEN ScrollablePanelWithItem::Strip : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

    QSize sizeHint() const override
    {
        const QSize contents = widget()->sizeHint();
        return WithFrame({qMin(contents.width(), PREFERRED_LINES * fontMetrics().height()), contents.height()});
    }

    // Room for something like one item.
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
            // Whoever hears of the new place may delete the panel, and the item with it.
            const QPointer<Strip> self(this);
            Show(static_cast<QWidget*>(watched));
            if (!self)
                return true;
        }
        return QScrollArea::eventFilter(watched, event);
    }

protected:
    // A scroll area places its contents when they scroll, and leaves them where they are when they are mirrored.
    void changeEvent(QEvent* event) override
    {
        QScrollArea::changeEvent(event);
        if (event->type() == QEvent::LayoutDirectionChange)
            scrollContentsBy(0, 0);
    }

    // A horizontal scroll bar takes either wheel, and leaves alone what would move it beyond its ends.
    void wheelEvent(QWheelEvent* event) override
    {
        if (isRightToLeft() && qAbs(event->angleDelta().x()) > qAbs(event->angleDelta().y())) {
            // A bar does not know that its values run to the left.
            QWheelEvent mirrored(event->position(), event->globalPosition(), -event->pixelDelta(), -event->angleDelta(),
                                 event->buttons(), event->modifiers(), event->phase(), event->inverted(),
                                 event->source());
            QCoreApplication::sendEvent(horizontalScrollBar(), &mirrored);
            event->setAccepted(mirrored.isAccepted());
        } else {
            QCoreApplication::sendEvent(horizontalScrollBar(), event);
        }
    }

    // The scroll area would move to the item by itself, but not from right to left, and not only sideways.
    bool focusNextPrevChild(bool next) override { return QWidget::focusNextPrevChild(next); }

private:
    QSize WithFrame(const QSize& contents) const { return contents + QSize(2 * frameWidth(), 2 * frameWidth()); }

    void Show(QWidget* item)
    {
        // An item may get the keyboard before it got its place.
        widget()->layout()->activate();
        QScrollBar* bar = horizontalScrollBar();
        const QRect place = QStyle::visualRect(layoutDirection(), widget()->rect(), item->geometry());
        bar->setValue(ValueToShow(place, bar->value(), viewport()->width()));
    }
};

struct ScrollablePanelWithItem::Items
{
    // Removes what is no item any more: deleted, given another parent, or about to go, which is a tool button no longer
    // in the slots of its `destroyed`. Looked at on use, since an event filter may swallow the event of a removed
    // child.
    void Prune(const QWidget* frame)
    {
        const auto isGone = [=](QObject* item) { return !qobject_cast<QToolButton*>(item) || item->parent() != frame; };
        list.erase(std::remove_if(list.begin(), list.end(), isGone), list.end());
    }

    QList<QPointer<QObject>> list; ///< tool buttons, in order of appending
};

struct ScrollablePanelWithItem::Parts
{
    QToolButton* leftScrollButton;
    QToolButton* rightScrollButton;
    Strip* panelScrollArea;
    QFrame* itemsFrame;
    QHBoxLayout* itemsLayout;
};

ScrollablePanelWithItem::ScrollablePanelWithItem(QWidget* parent)
    : ZFrame(parent), items(std::make_unique<Items>()), parts(std::make_unique<Parts>())
{
    Common::FollowLayoutDirection();
    Common::AccessibleFactory<ScrollablePanelWithItem, Common::AccessibleAs<QAccessible::ToolBar>>::Install();
    const auto makeScrollButton = [this](const QString& objectName) {
        auto* button = new QToolButton(this);
        button->setObjectName(objectName);
        // The keyboard goes to the items, which come into view by themselves.
        button->setFocusPolicy(Qt::NoFocus);
        return button;
    };
    parts->leftScrollButton = makeScrollButton(QStringLiteral("leftScrollButton"));
    parts->rightScrollButton = makeScrollButton(QStringLiteral("rightScrollButton"));
    Retranslate();
    Strip* area = parts->panelScrollArea = new Strip(this);
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
    // While the rest is there, which slots of an item's `destroyed` may use. An item that goes may take others along.
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
    parts->itemsLayout->setSpacing(qMin(spacing, LARGEST_SPACING));
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
    // A layout takes a deleted widget out by an event, which a filter may swallow, and would use it afterwards.
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
