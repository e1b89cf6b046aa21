#include <UI/Widgets/ButtonWithPopUpList.h>

#include <UI/Common/MirroredStyle.h>

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QVector>

#include <algorithm>

namespace Zelkor::Vx {

struct ButtonWithPopUpList::Impl
{
    struct Item
    {
        QAction* action;
        QVariant data;
    };

    explicit Impl(ButtonWithPopUpList* button) : menu(new QMenu(button)) {}
    ~Impl() { delete menu; }

    bool Has(int index) const { return index >= 0 && index < items.size(); }

    template<class Predicate>
    int IndexOf(Predicate predicate) const
    {
        const auto found = std::find_if(items.begin(), items.end(), predicate);
        return found == items.end() ? -1 : int(found - items.begin());
    }

    QVector<Item> items;
    QMenu* menu;
    int currentIndex = -1;
};

ButtonWithPopUpList::ButtonWithPopUpList(QWidget* parent) : QToolButton(parent), impl(std::make_unique<Impl>(this))
{
    UI::Common::FollowLayoutDirection();
    setMenu(impl->menu);
    setPopupMode(QToolButton::MenuButtonPopup);
}

ButtonWithPopUpList::~ButtonWithPopUpList() = default;

void ButtonWithPopUpList::AppendItem(const QString& text, const QVariant& data)
{
    auto* action = new QAction(text, this);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, action] { ActionTriggered(action); });
    impl->items.append({action, data});
    impl->menu->addAction(action);
    impl->menu->addSeparator();
    // The others stay as they are, however many they are.
    if (impl->currentIndex < 0)
        UpdateSelectionState();
    else
        action->setChecked(impl->currentIndex == impl->items.size() - 1);
}

void ButtonWithPopUpList::RemoveItem(int index)
{
    if (!impl->Has(index))
        return;
    QAction* action = impl->items.takeAt(index).action;
    impl->menu->removeAction(action);
    action->deleteLater();
    if (impl->currentIndex == index)
        impl->currentIndex = -1;
    else if (impl->currentIndex > index)
        --impl->currentIndex;
    UpdateSelectionState();
}

void ButtonWithPopUpList::RemoveItem(const QVariant& data)
{
    RemoveItem(ItemIndex(data));
}

void ButtonWithPopUpList::Clear()
{
    impl->menu->clear();
    for (const Impl::Item& item : qAsConst(impl->items))
        item.action->deleteLater();
    impl->items.clear();
    impl->currentIndex = -1;
}

int ButtonWithPopUpList::Count() const
{
    return impl->items.size();
}

int ButtonWithPopUpList::CurrentIndex() const
{
    return impl->currentIndex;
}

void ButtonWithPopUpList::SetCurrentIndex(int index)
{
    if (Announce(index))
        UpdateSelectionState();
}

QVariant ButtonWithPopUpList::CurrentData() const
{
    return ItemData(impl->currentIndex);
}

QVariant ButtonWithPopUpList::ItemData(int index) const
{
    return impl->Has(index) ? impl->items[index].data : QVariant();
}

int ButtonWithPopUpList::ItemIndex(const QVariant& data) const
{
    return impl->IndexOf([&](const Impl::Item& item) { return item.data == data; });
}

void ButtonWithPopUpList::ActionTriggered(QAction* action)
{
    const QPointer<ButtonWithPopUpList> self(this);
    const int index = impl->IndexOf([=](const Impl::Item& item) { return item.action == action; });
    if (index >= 0 && Announce(index))
        UpdateSelectionState();
    // Qt has unchecked an action that was current already.
    if (self)
        UpdateSelectionState();
}

void ButtonWithPopUpList::UpdateSelectionState()
{
    while (impl->currentIndex < 0 && !impl->items.isEmpty()) {
        if (!Announce(0))
            return;
    }
    CheckCurrentAction();
}

/// Sets and tells the current index. False when a slot has deleted the button.
bool ButtonWithPopUpList::Announce(int index)
{
    const QPointer<ButtonWithPopUpList> self(this);
    impl->currentIndex = index;
    Q_EMIT CurrentIndexChanged(index);
    return self;
}

void ButtonWithPopUpList::CheckCurrentAction()
{
    for (int i = 0; i < impl->items.size(); ++i)
        impl->items[i].action->setChecked(i == impl->currentIndex);
    // What a screen reader says beside the button's own name.
    setAccessibleDescription(impl->Has(impl->currentIndex) ? impl->items[impl->currentIndex].action->text()
                                                           : QString());
}

} // namespace Zelkor::Vx
