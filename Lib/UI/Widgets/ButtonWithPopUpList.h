#pragma once

#include <UI/Common/Export.h>

#include <QToolButton>
#include <QVariant>

#include <memory>

namespace Zelkor::Vx {

/// A tool button with a menu of choices, of which one is current.
///
/// Each choice is a text with a value of the application's. The menu opens from the arrow part of the button, by
/// keyboard with Down, Alt+Down, F4 or the menu key, and shows a check mark at the current choice; a click on the main
/// part is the application's. Text and icon of the button are the application's too. The button owns the menu and its
/// actions. GUI thread only.
class VX_WIDGETS_EXPORT ButtonWithPopUpList : public QToolButton
{
    Q_OBJECT

public:
    explicit ButtonWithPopUpList(QWidget* parent = nullptr);
    ~ButtonWithPopUpList() override;

    /// Adds a choice at the end. The first one of an empty list becomes current.
    void AppendItem(const QString& text, const QVariant& data);

    /// Removes a choice, as the deletion of its action does; nothing for an index or a value that no item has. When the
    /// current one goes, item 0 becomes current; when one before it goes, the current index falls by one, without a
    /// signal.
    void RemoveItem(int index);
    void RemoveItem(const QVariant& data);

    /// Removes all choices, without a signal.
    void Clear();

    int Count() const;

    /// The index set last, -1 for an empty list.
    int CurrentIndex() const;

    /// Makes a choice current and emits `CurrentIndexChanged`, also when it is current already. An index past the end
    /// is kept as it is and leaves no choice checked; after a negative one item 0 becomes current, with a second
    /// signal.
    void SetCurrentIndex(int index);

    /// The value of the current item or of the one at `index`; invalid where there is none.
    QVariant CurrentData() const;
    QVariant ItemData(int index) const;

    /// The first index with this value, or -1.
    int ItemIndex(const QVariant& data) const;

Q_SIGNALS:
    /// A choice was made, by a person or by the application; also the one that was current already.
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
