#pragma once

#include <UI/Common/Export.h>

#include <QToolButton>
#include <QVariant>

#include <memory>

namespace Zelkor::Vx {

/// A tool button with a menu of items, one of which is current.
///
/// An item is a text with a value. The arrow part of the button opens the menu, which shows a check mark at the
/// current item. The application handles clicks on the main part of the button and sets
/// its text and icon. The button owns the menu and its actions; an action may be deleted, which removes its item. A
/// slot may delete the button. GUI thread only.
///
/// Keys: Down, Alt+Down, F4 and the menu key open the menu; Space clicks the main part of the button.
class VX_WIDGETS_EXPORT ButtonWithPopUpList : public QToolButton
{
    Q_OBJECT

public:
    explicit ButtonWithPopUpList(QWidget* parent = nullptr);
    ~ButtonWithPopUpList() override;

    /// Appends an item. The first item of an empty list becomes current.
    void AppendItem(const QString& text, const QVariant& data);

    /// Removes an item. Ignores an index or a value that no item has. When the current item is removed, item 0 becomes
    /// current; when an earlier one is, the current index decreases by one without a signal.
    void RemoveItem(int index);
    void RemoveItem(const QVariant& data);

    /// Removes all items, without a signal.
    void Clear();

    int Count() const;

    /// Returns the index set last, or -1 for an empty list.
    int CurrentIndex() const;

    /// Makes an item current and emits `CurrentIndexChanged`, also when it is current already. An index past the end is
    /// kept and leaves no item checked. A negative index makes item 0 current, with a second signal.
    void SetCurrentIndex(int index);

    /// Returns the value of the current item or of the one at `index`, or an invalid `QVariant`.
    QVariant CurrentData() const;
    QVariant ItemData(int index) const;

    /// Returns the index of the first item with this value, or -1.
    int ItemIndex(const QVariant& data) const;

Q_SIGNALS:
    /// Emitted when the user or the application chooses an item, also when it is current already.
    void CurrentIndexChanged(int index);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    void ActionTriggered(QAction* action);
    void UpdateSelectionState();

private:
    void ForgetItem(int index);
    bool Announce(int index);
    void CheckCurrentAction();

    struct Q_DECL_HIDDEN Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::Vx
