#pragma once

#include <UI/Common/Export.h>
#include <UI/Kit/ZFrame.h>

#include <memory>

class QToolButton;

namespace Zelkor::Vx::UI {

/// A strip of tool buttons, the items, that scrolls sideways when they do not fit.
///
/// A button at either end scrolls by one visible width; it is disabled where there is nothing to scroll to. The wheel
/// scrolls as well, and an item that gets the keyboard comes into view. The strip is as high as its items. From right
/// to left it is mirrored as a whole: the "left" button then stands at the right, where the items begin, and goes
/// there.
///
/// The application makes the items and connects them; they become children of the strip. An item that is deleted, or
/// given another parent, leaves the strip. GUI thread only.
///
/// Object names for style sheets: "leftScrollButton" and "rightScrollButton", "panelScrollArea" between them, and in it
/// "itemsFrame", which is as wide as the items.
class VX_WIDGETS_EXPORT ScrollablePanelWithItem : public ZFrame
{
    Q_OBJECT
    Q_PROPERTY(int itemsSpacing READ GetItemsScpacing WRITE SetItemsSpacing)

public:
    explicit ScrollablePanelWithItem(QWidget* parent);
    ~ScrollablePanelWithItem() override;

    /// Pixels between two items, 0 by default; a negative number stands for what the style has between widgets.
    int GetItemsScpacing() const;
    void SetItemsSpacing(int spacing);

    /// Puts an item at the end, also one that is an item already. Null, a scroll button and a parent of
    /// the panel are ignored.
    void Append(QToolButton* item);

    /// Takes all items out and has them deleted when control returns to the event loop.
    void RemoveItems();

    /// Clicks the item, counted from 0; false when there is none. The item, and the panel, may go by its own click.
    bool SelectItem(int index);

protected:
    void changeEvent(QEvent* event) override;

private:
    class Strip;
    struct Parts;
    struct Items;

    void Retranslate();
    void Scroll(int direction);
    void UpdateScrollButtons();

    std::unique_ptr<Items> items;
    std::unique_ptr<Parts> parts;
};

} // namespace Zelkor::Vx::UI
