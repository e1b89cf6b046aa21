#include <UI/Widgets/ButtonWithPopUpList.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/MirroredStyle.h>
#include <UI/Common/PopUpKeys.h>
#include <UI/Common/TextMarks.h>
#include <UI/Widgets/AccessiblePopUpButton.h>

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QVector>

#include <algorithm>
#include <utility>

namespace Zelkor::Vx {

namespace Common = UI::Common;

/// Filters the events of the menu: notifies assistive technology when it opens and closes, and highlights the current
/// item of a menu that was opened by a key.
struct ButtonWithPopUpList::Impl : public QObject
{
    class AccessibleButton;

    struct Item
    {
        QAction* action;
        QPointer<QAction> separator;
        QVariant data;
    };

    explicit Impl(ButtonWithPopUpList* button) : button(button), menu(new QMenu(button))
    {
        menu->installEventFilter(this);
    }
    ~Impl() override
    {
        if (menu)
            menu->removeEventFilter(this);
        delete menu;
    }

    bool Has(int index) const { return index >= 0 && index < items.size(); }

    template<class Predicate>
    int IndexOf(Predicate predicate) const
    {
        const auto found = std::find_if(items.begin(), items.end(), predicate);
        return found == items.end() ? -1 : int(found - items.begin());
    }

    // Reuses a separator that a removed item has left in the menu, and creates one if there is none.
    QPointer<QAction> AppendSeparator()
    {
        while (!orphanedSeparators.isEmpty()) {
            const QPointer<QAction> separator = orphanedSeparators.takeLast();
            if (!separator)
                continue;
            if (menu) {
                menu->removeAction(separator);
                menu->addAction(separator);
            }
            return separator;
        }
        return menu ? menu->addSeparator() : nullptr;
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Show && event->type() != QEvent::Hide)
            return false;
        if (event->type() == QEvent::Show && isOpenedByKey && Has(currentIndex))
            menu->setActiveAction(items[currentIndex].action);
        isOpenedByKey = false;
        QAccessible::State changed;
        changed.expanded = true;
        changed.collapsed = true;
        QAccessibleStateChangeEvent change(button, changed);
        QAccessible::updateAccessibility(&change);
        return QObject::eventFilter(watched, event);
    }

    ButtonWithPopUpList* button;
    QVector<Item> items;
    QVector<QPointer<QAction>> orphanedSeparators;
    QPointer<QMenu> menu; ///< the application may delete it
    int currentIndex = -1;
    bool isOpenedByKey = false;
    QString describedAs; ///< the accessible description set last; the application may have replaced it
};

class ButtonWithPopUpList::Impl::AccessibleButton : public UI::AccessiblePopUpButton
{
public:
    explicit AccessibleButton(ButtonWithPopUpList* button) : AccessiblePopUpButton(button), button(button) {}

    QStringList actionNames() const override
    {
        return button->isEnabled() ? QStringList{showMenuAction(), pressAction()} + QAccessibleWidget::actionNames()
                                   : QStringList();
    }

    void doAction(const QString& name) override
    {
        if (!button->isEnabled())
            return;
        if (name == pressAction())
            button->click();
        else if (name != showMenuAction())
            QAccessibleWidget::doAction(name);
        else if (IsPopUpVisible())
            button->menu()->close();
        else
            // The menu runs an event loop, and the caller would wait for its end.
            QMetaObject::invokeMethod(button, &QToolButton::showMenu, Qt::QueuedConnection);
    }

protected:
    bool IsPopUpVisible() const override { return button->menu() && button->menu()->isVisible(); }

private:
    ButtonWithPopUpList* button;
};

ButtonWithPopUpList::ButtonWithPopUpList(QWidget* parent) : QToolButton(parent), impl(std::make_unique<Impl>(this))
{
    UI::Common::FollowLayoutDirection();
    Common::AccessibleFactory<ButtonWithPopUpList, Impl::AccessibleButton>::Install();
    setMenu(impl->menu);
    setPopupMode(QToolButton::MenuButtonPopup);
}

ButtonWithPopUpList::~ButtonWithPopUpList() = default;

void ButtonWithPopUpList::AppendItem(const QString& text, const QVariant& data)
{
    auto* action = new QAction(text, this);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, action] { ActionTriggered(action); });
    // The application has access to the actions through the menu, and may delete one.
    connect(action, &QObject::destroyed, impl.get(), [this](QObject* deleted) {
        const int index = impl->IndexOf([=](const Impl::Item& item) { return item.action == deleted; });
        if (index < 0)
            return;
        // A slot may delete the button, which would delete its child again.
        deleted->setParent(nullptr);
        ForgetItem(index);
    });
    if (impl->menu)
        impl->menu->addAction(action);
    impl->items.append({action, impl->AppendSeparator(), data});
    // Checks only the new action, since updating all of them makes appending quadratic.
    if (impl->currentIndex < 0)
        UpdateSelectionState();
    else
        action->setChecked(impl->currentIndex == impl->items.size() - 1);
}

void ButtonWithPopUpList::RemoveItem(int index)
{
    if (!impl->Has(index))
        return;
    QAction* action = impl->items[index].action;
    if (impl->menu)
        impl->menu->removeAction(action);
    action->deleteLater();
    ForgetItem(index);
}

void ButtonWithPopUpList::ForgetItem(int index)
{
    impl->orphanedSeparators.append(impl->items[index].separator);
    impl->items.removeAt(index);
    if (impl->currentIndex == index)
        impl->currentIndex = -1;
    else if (impl->currentIndex > index)
        --impl->currentIndex;
    const bool isLast = impl->items.isEmpty();
    UpdateSelectionState();
    if (isLast && impl->menu)
        impl->menu->close();
}

void ButtonWithPopUpList::RemoveItem(const QVariant& data)
{
    RemoveItem(ItemIndex(data));
}

void ButtonWithPopUpList::Clear()
{
    if (impl->menu)
        impl->menu->clear();
    for (const Impl::Item& item : std::as_const(impl->items))
        item.action->deleteLater();
    impl->items.clear();
    impl->orphanedSeparators.clear();
    impl->currentIndex = -1;
    CheckCurrentAction();
    // Closed last, since a slot of the menu may delete the button.
    if (impl->menu)
        impl->menu->close();
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

/// Sets the current index and emits the signal. Returns false if a slot has deleted the button.
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
    // Describes the current item to assistive technology, unless the application has set a description.
    if (accessibleDescription() != impl->describedAs)
        return;
    impl->describedAs = impl->Has(impl->currentIndex)
                            ? Common::WithoutMnemonic(impl->items[impl->currentIndex].action->text())
                            : QString();
    setAccessibleDescription(impl->describedAs);
}

void ButtonWithPopUpList::keyPressEvent(QKeyEvent* event)
{
    if (!Common::OpensPopUp(*event) || impl->items.isEmpty())
        return QToolButton::keyPressEvent(event);
    event->accept();
    impl->isOpenedByKey = true;
    // Runs an event loop, in which the button may be deleted.
    showMenu();
}

} // namespace Zelkor::Vx
